#include "windows/com_error.h"

#include <algorithm>
#include <array>
#include <new>
#include <string_view>

namespace rf::native::com {

namespace {

using automation::Error;

struct ClassicNumber {
    HRESULT status;
    std::int32_t number;
};

/// The failures for which the classic rules have a number of their own.
constexpr ClassicNumber classicNumbers[] = {
    {DISP_E_UNKNOWNINTERFACE, error_number::memberNotFound},
    {DISP_E_MEMBERNOTFOUND, error_number::memberNotFound},
    {DISP_E_UNKNOWNNAME, error_number::memberNotFound},
    {DISP_E_PARAMNOTFOUND, error_number::namedArgumentNotFound},
    {DISP_E_TYPEMISMATCH, error_number::typeMismatch},
    {DISP_E_NONAMEDARGS, 446},
    {DISP_E_UNKNOWNLCID, 447},
    {DISP_E_BADVARTYPE, 458},
    {DISP_E_OVERFLOW, error_number::overflow},
    {DISP_E_BADINDEX, error_number::subscriptOutOfRange},
    {DISP_E_ARRAYISLOCKED, 10},
    {DISP_E_BADPARAMCOUNT, error_number::wrongArgumentCount},
    {DISP_E_PARAMNOTOPTIONAL, 449},
    {DISP_E_NOTACOLLECTION, 451},
    {DISP_E_DIVBYZERO, 11},
    {E_NOTIMPL, 445},
    {E_NOINTERFACE, 430},
    {E_INVALIDARG, error_number::invalidCall},
    {E_OUTOFMEMORY, 7},
    {E_ACCESSDENIED, 70},
    {HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE), 462},
    {REGDB_E_CLASSNOTREG, error_number::cannotCreateObject},
    {CO_E_CLASSSTRING, error_number::cannotCreateObject},
    {CO_E_APPNOTFOUND, error_number::cannotCreateObject},
    {MK_E_UNAVAILABLE, error_number::cannotCreateObject},
};

constexpr std::int32_t largestClassicNumber = 0xFFFF;

Text systemText(HRESULT status)
{
    std::array<wchar_t, 512> buffer;
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(status), 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    Text text = textOf(buffer.data(), length);
    text.erase(text.find_last_not_of(u"\r\n ") + 1);
    return text;
}

Text descriptionOf(HRESULT status, std::int32_t number)
{
    const TextView unspecific = errorDescription(0);
    const TextView classic = errorDescription(number);
    if (classic != unspecific)
        return Text{classic};
    const Text system = systemText(status);
    return system.empty() ? Text{unspecific} : system;
}

HRESULT tell(EXCEPINFO* told, const RuntimeError& error, TextView source)
{
    const HRESULT status = statusOf(error.number());
    if (told == nullptr)
        return status;
    Bstr description{error.description()};
    Bstr sourceText{source};
    *told = EXCEPINFO{};
    told->scode = status;
    told->bstrDescription = description.detach();
    told->bstrSource = sourceText.detach();
    return DISP_E_EXCEPTION;
}

} // namespace

std::int32_t numberOf(HRESULT status)
{
    if (FAILED(status) && HRESULT_FACILITY(status) == FACILITY_CONTROL)
        return HRESULT_CODE(status);
    const auto* const found = std::ranges::find(classicNumbers, status, &ClassicNumber::status);
    return found == std::end(classicNumbers) ? std::int32_t{status} : found->number;
}

HRESULT statusOf(std::int32_t number)
{
    if (number < 0)
        return number;
    if (number == 0 || number > largestClassicNumber)
        return E_FAIL;
    return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

Error errorOf(HRESULT status, TextView member)
{
    const std::int32_t number = numberOf(status);
    return Error{number, {descriptionOf(status, number), {}, Text{member}}};
}

Error errorOf(HRESULT status, ExceptionInfo& told, TextView member)
{
    if (status != DISP_E_EXCEPTION)
        return errorOf(status, member);
    if (told.pfnDeferredFillIn != nullptr)
        told.pfnDeferredFillIn(&told);
    // A callee gives either a code or a number of its own.
    const HRESULT inner = told.scode == 0 ? DISP_E_EXCEPTION : told.scode;
    const std::int32_t number = told.wCode == 0 ? numberOf(inner) : told.wCode;
    Text description = textOfBstr(told.bstrDescription);
    if (description.empty())
        description = descriptionOf(inner, number);
    return Error{number, {std::move(description), textOfBstr(told.bstrSource), Text{member}}};
}

void check(HRESULT status)
{
    if (FAILED(status))
        throw errorOf(status);
}

HRESULT reportException(EXCEPINFO* told) noexcept
try {
    try {
        throw;
    } catch (const Error& error) {
        return tell(told, error, error.source());
    } catch (const RuntimeError& error) {
        return tell(told, error, {});
    }
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
} catch (...) {
    return E_UNEXPECTED;
}

} // namespace rf::native::com
