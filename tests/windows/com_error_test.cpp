#include "windows/com_error.h"

#include <gtest/gtest.h>

namespace rf::native::com {
namespace {

using automation::Error;

/// What the callee postpones until somebody reads the description.
HRESULT CALLBACK fillIn(EXCEPINFO* told)
{
    told->bstrDescription = Bstr{u"filled in late"}.detach();
    told->scode = HRESULT(0x800A0005);
    return S_OK;
}

TEST(ComError, GivesTheClassicNumberWhereThereIsOne)
{
    EXPECT_EQ(numberOf(DISP_E_MEMBERNOTFOUND), 438);
    EXPECT_EQ(numberOf(DISP_E_UNKNOWNNAME), 438);
    EXPECT_EQ(numberOf(DISP_E_TYPEMISMATCH), 13);
    EXPECT_EQ(numberOf(DISP_E_OVERFLOW), 6);
    EXPECT_EQ(numberOf(DISP_E_BADPARAMCOUNT), 450);
    EXPECT_EQ(numberOf(DISP_E_PARAMNOTOPTIONAL), 449);
    EXPECT_EQ(numberOf(REGDB_E_CLASSNOTREG), 429);
    EXPECT_EQ(numberOf(HRESULT(0x800A01B6)), 438);
    EXPECT_EQ(numberOf(HRESULT(0x800A03EC)), 1004);
}

TEST(ComError, KeepsAnyOtherCodeAsTheNumber)
{
    EXPECT_EQ(numberOf(RPC_E_SERVERFAULT), RPC_E_SERVERFAULT);
    EXPECT_EQ(numberOf(E_FAIL), -2147467259);
    EXPECT_EQ(numberOf(HRESULT(0x8004010F)), -2147221233);
}

TEST(ComError, ReadsBackTheNumberThatItSends)
{
    for (const std::int32_t number : {1, 13, 91, 438, 1004, 65535, -2147221233})
        EXPECT_EQ(numberOf(statusOf(number)), number);
}

TEST(ComError, SendsAnImpossibleNumberAsAGeneralFailure)
{
    EXPECT_EQ(statusOf(0), E_FAIL);
    EXPECT_EQ(statusOf(65536), E_FAIL);
}

TEST(ComError, DescribesAClassicNumberInClassicWordsAndAnyOtherInTheSystemsOnes)
{
    EXPECT_EQ(errorOf(DISP_E_TYPEMISMATCH).description(), errorDescription(13));
    const Error other = errorOf(HRESULT_FROM_WIN32(ERROR_SHARING_VIOLATION), u"Save");
    EXPECT_EQ(other.member(), u"Save");
    EXPECT_FALSE(other.description().empty());
    EXPECT_NE(other.description(), errorDescription(other.number()));
    EXPECT_EQ(other.description().find_first_of(u"\r\n"), Text::npos);
    EXPECT_EQ(errorOf(HRESULT(0x8FEDCBA9)).description(), errorDescription(0));
}

TEST(ComError, TakesNumberDescriptionAndSourceFromWhatTheCalleeTold)
{
    ExceptionInfo told;
    told.scode = HRESULT(0x8004010F);
    told.bstrDescription = Bstr{u"not found"}.detach();
    told.bstrSource = Bstr{u"Store"}.detach();
    const Error error = errorOf(DISP_E_EXCEPTION, told, u"Item");
    EXPECT_EQ(error.number(), -2147221233);
    EXPECT_EQ(error.description(), u"not found");
    EXPECT_EQ(error.source(), u"Store");
    EXPECT_EQ(error.member(), u"Item");
}

TEST(ComError, TakesACalleesOwnNumberAsItIs)
{
    ExceptionInfo told;
    told.wCode = 1001;
    EXPECT_EQ(errorOf(DISP_E_EXCEPTION, told, {}).number(), 1001);
}

TEST(ComError, FetchesADescriptionThatTheCalleePostponed)
{
    ExceptionInfo told;
    told.pfnDeferredFillIn = fillIn;
    const Error error = errorOf(DISP_E_EXCEPTION, told, {});
    EXPECT_EQ(error.number(), 5);
    EXPECT_EQ(error.description(), u"filled in late");
}

TEST(ComError, IgnoresWhatWasToldWithAnotherFailure)
{
    ExceptionInfo told;
    told.scode = E_FAIL;
    EXPECT_EQ(errorOf(DISP_E_MEMBERNOTFOUND, told, {}).number(), 438);
}

HRESULT reportOf(auto exception, EXCEPINFO* told)
{
    try {
        throw exception;
    } catch (...) {
        return reportException(told);
    }
}

TEST(ComError, ReportsAFailureWithItsDescriptionAndSource)
{
    ExceptionInfo told;
    EXPECT_EQ(reportOf(Error{1004, {u"no room", u"Rooms", {}}}, &told), DISP_E_EXCEPTION);
    EXPECT_EQ(told.scode, HRESULT(0x800A03EC));
    EXPECT_EQ(textOfBstr(told.bstrDescription), u"no room");
    EXPECT_EQ(textOfBstr(told.bstrSource), u"Rooms");
}

TEST(ComError, ReportsAFailureByItsCodeToACallerWhoAsksForNoMore)
{
    EXPECT_EQ(reportOf(RuntimeError{91}, nullptr), HRESULT(0x800A005B));
}

TEST(ComError, ReportsWhateverElseIsThrownAsUnexpected)
{
    EXPECT_EQ(reportOf(std::bad_alloc{}, nullptr), E_OUTOFMEMORY);
    EXPECT_EQ(reportOf(std::logic_error{"bang"}, nullptr), E_UNEXPECTED);
    EXPECT_EQ(reportOf(7, nullptr), E_UNEXPECTED);
}

} // namespace
} // namespace rf::native::com
