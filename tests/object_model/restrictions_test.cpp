#include "object_model/object_model.h"

namespace rf::test {
namespace {

/// What restrictions find in a calendar of four appointments on 3 February 2024, in the order of their making.
class Restrictions : public ObjectModel {
protected:
    Restrictions()
    {
        const auto board = newAppointment(u"Board", at(9), 60);
        board.userProperties().add(u"OCID", outlook::UserPropertyType::Text, true).setValue(u"it's a");
        board.save();
        booked(u"Sales", at(11), 30);
        booked(u"Say \"hi\"", at(14), 120);
        booked(u"Late", Date::fromFields({2024, 2, 3, 17, 0, 30}), 60);
    }

    static std::vector<Text> foundIn(const outlook::Items& items, const Text& restriction)
    {
        std::vector<Text> subjects;
        for (auto item = items.find(restriction); item; item = items.findNext())
            subjects.push_back(item.subject());
        return subjects;
    }

    struct Row {
        const char16_t* restriction;
        std::vector<Text> found;
    };
    static void expectFinds(const outlook::Folder& folder, const std::vector<Row>& rows)
    {
        for (const auto& [restriction, found] : rows) {
            EXPECT_EQ(foundIn(folder.items(), restriction), found) << toUtf8(restriction);
            EXPECT_EQ(folder.items().restrict(restriction).count(), static_cast<std::int32_t>(found.size()))
                << toUtf8(restriction);
        }
    }
};

TEST_P(Restrictions, CompareInSixWays)
{
    expectFinds(calendar(),
        {{u"[Duration] = 30", {u"Sales"}}, {u"[Duration] <> 60", {u"Sales", u"Say \"hi\""}},
            {u"[Duration] < 60", {u"Sales"}}, {u"[Duration] <= 60", {u"Board", u"Sales", u"Late"}},
            {u"[Duration] > 60", {u"Say \"hi\""}}, {u"[Duration] >= 60", {u"Board", u"Say \"hi\"", u"Late"}}});
}

TEST_P(Restrictions, CompareTextsInAnyCaseAndEitherQuotes)
{
    expectFinds(calendar(),
        {{u"[Subject] = 'bOARD'", {u"Board"}}, {u"[Subject] = \"sales\"", {u"Sales"}},
            {u"[Subject] = \"Say \"\"hi\"\"\"", {u"Say \"hi\""}}, {u"[Subject] = 'Say \"hi\"'", {u"Say \"hi\""}},
            {u"[OCID] = 'IT''S A'", {u"Board"}}, {u"[OCID] = \"it's a\"", {u"Board"}}});
}

TEST_P(Restrictions, AreJoinedNegatedAndGrouped)
{
    expectFinds(calendar(),
        {{u"[Subject] = 'Board' or [Subject] = 'Sales' and [Duration] > 60", {u"Board"}},
            {u"([Subject] = 'Board' OR [Subject] = 'Sales') AND [Duration] < 60", {u"Sales"}},
            {u"not [Subject] = 'Board' and [Duration] = 60", {u"Late"}},
            {u"Not ([Duration] = 60 or [Subject] = 'Sales')", {u"Say \"hi\""}}});
}

TEST_P(Restrictions, ReadDatesInTheOrderOfTheUser)
{
    expectFinds(calendar(),
        {{u"[Start] = '2/3/2024 9:00 AM'", {u"Board"}}, {u"[Start] = \"#2024-2-3 9:00 AM#\"", {u"Board"}},
            {u"[Start] > '2/3/2024 9:00 AM' and [End] <= '#2/3/2024 4:00 PM#'", {u"Sales", u"Say \"hi\""}},
            {u"[Start] < '3/2/2024'", {u"Board", u"Sales", u"Say \"hi\"", u"Late"}}});

    const PatternRegional german{germanSettings()};
    const auto germanHost
        = host::Application::make({store, german, clock, windows, recurrence.get()}, {u"11.0.8169", u"Jane Doe"});
    const auto way = GetParam().make();
    const auto germanCalendar = way->connect(germanHost).getNamespace().getFolderFromId(calendar().entryId(), {});
    expectFinds(germanCalendar,
        {{u"[Start] = '3.2.2024 09:00'", {u"Board"}}, {u"[Start] = \"#2024-3-2 09:00#\"", {u"Board"}},
            {u"[Start] = '2/3/2024 9:00'", {}}});
}

TEST_P(Restrictions, CompareTimesToTheMinute)
{
    expectFinds(calendar(),
        {{u"[Start] = '2/3/2024 5:00 PM'", {u"Late"}}, {u"[Start] > '2/3/2024 5:00 PM'", {}},
            {u"[Start] <= '2/3/2024 5:00 PM' and [Start] > '2/3/2024 4:59 PM'", {u"Late"}}});
}

TEST_P(Restrictions, KnowAFieldThatWasAddedWithoutSayingWhere)
{
    const auto item = newAppointment(u"Fair", at(20), 60);
    item.userProperties().object().call(u"Add", u"Link", 1);
    item.userProperties().find(u"Link").setValue(u"x");
    item.save();
    EXPECT_EQ(foundIn(calendar().items(), u"[Link] = 'X'"), std::vector<Text>{u"Fair"});
}

RF_EVERY_TRANSPORT(Restrictions);

} // namespace
} // namespace rf::test
