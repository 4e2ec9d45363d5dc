#include "booking/rules_fixture.h"

namespace rf {
namespace {

using automation::Variant;
using outlook::UserPropertyType;
using test::at;

/// Bookings whose properties another program has made, under the program's names but with types of its own.
class AppItemsOverOtherTypes : public test::RulesTest {
protected:
    struct Given {
        TextView name;
        UserPropertyType type;
        Variant value;
    };

    /// A booking at nine for an hour with these properties, and the program's own ones beside them.
    [[nodiscard]] outlook::AppointmentItem bookingWith(const std::vector<Given>& given) const
    {
        auto item = newAppointment(u"Board", at(9), 60);
        for (const Given& property : given)
            item.userProperties().add(property.name, property.type, false).setValue(property.value);
        EXPECT_FALSE(fncAddBookingProps(item)) << "the host refuses the name with the program's own type";
        item.save();
        return item;
    }
    static void move(const outlook::AppointmentItem& item, Date start, int minutes)
    {
        item.setStart(start);
        item.setDuration(minutes);
        item.save();
    }
    /// How often the booking is saved while its watcher hears of the change and of each of its own saves.
    [[nodiscard]] int savesAfter(const outlook::AppointmentItem& item) const
    {
        constexpr int enough = 5;
        auto& watcher = watch();
        int saves = 0;
        for (auto before = only(room).revision; saves < enough; ++saves) {
            watcher.ouisItems_ItemChange(item);
            if (only(room).revision == before)
                break;
            before = only(room).revision;
        }
        return saves;
    }
};

TEST_F(AppItemsOverOtherTypes, PutARefusedMoveBackToATimeInTexts)
{
    const auto item = bookingWith({{u"OriginalStartDate", UserPropertyType::Text, u"2/3/2024 9:00:00 AM"},
        {u"OriginalDuration", UserPropertyType::Text, u"60"}});
    settings().ProjectMandatory = true;
    move(item, at(14), 30);
    EXPECT_EQ(savesAfter(item), 1);
    EXPECT_EQ(only(room).start, at(9));
    EXPECT_EQ(only(room).end, at(10));
}

TEST_F(AppItemsOverOtherTypes, RememberAnAcceptedMoveInTextsAndAreDone)
{
    const auto item = bookingWith({{u"OriginalStartDate", UserPropertyType::Text, u"damaged"},
        {u"OriginalDuration", UserPropertyType::Text, u"an hour"}});
    move(item, at(14), 30);
    EXPECT_EQ(savesAfter(item), 1);
    EXPECT_EQ(property(only(room), u"OriginalStartDate"), Variant{u"2/3/2024 2:00:00 PM"});
    EXPECT_EQ(property(only(room), u"OriginalDuration"), Variant{u"30"});
}

TEST_F(AppItemsOverOtherTypes, TakeATimeThatIsNoneForUnset)
{
    const auto item = bookingWith({{u"OriginalStartDate", UserPropertyType::Text, u"damaged"},
        {u"OriginalDuration", UserPropertyType::Text, u"an hour"}});
    settings().ProjectMandatory = true;
    move(item, at(14), 30);
    EXPECT_EQ(savesAfter(item), 0);
    EXPECT_EQ(only(room).start, at(14));
    EXPECT_EQ(only(room).end, at(14, 30));
}

TEST_F(AppItemsOverOtherTypes, CopyABookingWhoseLinkIsANumberOnce)
{
    const auto item = bookingWith({{u"OCID", UserPropertyType::Number, 4711.0}});
    settings().PersonalCopy = true;
    move(item, at(14), 30);
    static_cast<void>(savesAfter(item));
    move(item, at(15), 30);
    static_cast<void>(savesAfter(item));
    EXPECT_EQ(only(own).start, at(15));
    EXPECT_EQ(property(only(own), u"OCID"), Variant{u"4711"});
}

TEST_F(AppItemsOverOtherTypes, LeaveAnAddedItemAloneThatHasAnOrganizerOfAnyType)
{
    const auto item = bookingWith({{u"SafeOrganizer", UserPropertyType::YesNo, true}});
    watch().ouisItems_ItemAdd(item);
    EXPECT_EQ(host::entryIdOf(only(room).id), item.entryId());
}

TEST_F(AppItemsOverOtherTypes, EndTheRecursionWhateverATypeMakesOfATime)
{
    for (const auto type :
        {UserPropertyType::Text, UserPropertyType::Number, UserPropertyType::DateTime, UserPropertyType::YesNo}) {
        for (const TextView name : {u"OriginalStartDate", u"OriginalDuration"}) {
            begin();
            const auto item = newAppointment(u"Board", at(9), 60);
            static_cast<void>(item.userProperties().add(name, type, false));
            static_cast<void>(fncAddBookingProps(item));
            item.save();
            move(item, at(14), 90);
            EXPECT_LE(savesAfter(item), 1) << toUtf8(name) << " as type " << outlook::code(type);
        }
    }
}

} // namespace
} // namespace rf
