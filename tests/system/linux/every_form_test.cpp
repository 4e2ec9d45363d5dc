#include "hands_fixture.h"

namespace rf::test {
namespace {

struct Tongue {
    std::string locale;
    std::string name;
};

/// The whole way through every form of an installation, in the language of the system.
class EveryForm : public ByHand, public testing::WithParamInterface<Tongue> {
protected:
    const EnvironmentVariable tongue{"LC_ALL", GetParam().locale};
    const EnvironmentVariable language{"LANGUAGE", GetParam().locale};

    void expectWholeCaptions(const char* form)
    {
        for (auto* const hands : {&atHost, &atProgram}) {
            EXPECT_TRUE(hands->isThere()) << form;
            EXPECT_EQ(hands->clippedTexts(), std::vector<std::string>{}) << form;
        }
    }
    void show(HandsOn& hands, const QString& window, const char* form)
    {
        expectWholeCaptions(form);
        picture(hands, window, GetParam().name + "-" + form);
    }
};

TEST_P(EveryForm, ShowsItsCaptionsWhole)
{
    giveSettings();
    serveWithWindows();
    ASSERT_TRUE(atProgram.sees("Roomfold for Outlook Booking Info", "Yes"));
    show(atProgram, "Roomfold for Outlook Booking Info", "no-room");
    atProgram.click("Roomfold for Outlook Booking Info", "Yes");
    ASSERT_TRUE(atProgram.sees({}, "txtResourceName"));
    atProgram.write({}, "txtResourceName", "Room 1");
    show(atProgram, {}, "add-resource");
    atProgram.click({}, "cmdOK");
    ASSERT_TRUE(atHost.sees("explorer", "hours"));
    openNewAppointment();
    atHost.write("inspector", "subject", "1");
    show(atHost, "inspector", "booking-bar");
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    show(atProgram, {}, "orders-form");
    atProgram.click({}, "cmdCancel");
    ASSERT_TRUE(atProgram.misses({}, "cmdOK"));
    atHost.click("inspector", "Save");
    // There is no project.
    ASSERT_TRUE(atHost.sees("alert"));
    show(atHost, "alert", "refusal");
    atHost.click("alert", "Cancel");
    ASSERT_TRUE(atHost.misses("inspector"));
    atHost.click("explorer", "description");
    ASSERT_TRUE(atProgram.sees({}, "wb"));
    show(atProgram, {}, "room");
}

/// What the others find nothing of is there to be found.
using LongCaption = ByHand;

TEST_F(LongCaption, IsFoundWhereItDoesNotFit)
{
    const std::string name = "A place setting whose name is longer than any room that a form has for it";
    giveSettings({.placeSettings = u"Theatre\r\n" + fromUtf8(name)});
    makeRooms({u"Room 1"});
    serveWithWindows();
    ASSERT_TRUE(atHost.sees("explorer", "hours"));
    openNewAppointment();
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    EXPECT_EQ(atProgram.clippedTexts(), std::vector<std::string>{"Roomfold for Outlook Booking Info: " + name});
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryForm,
    testing::Values(Tongue{"en_GB.UTF-8", "English"}, Tongue{"de_DE.UTF-8", "German"}, Tongue{"el_GR.UTF-8", "Greek"},
        Tongue{"fr_FR.UTF-8", "French"}),
    [](const auto& tongue) { return tongue.param.name; });

} // namespace
} // namespace rf::test
