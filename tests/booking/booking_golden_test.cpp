#include "basic/locales.h"
#include "booking/conflicts.h"
#include "booking/rules_fixture.h"
#include "storage/long_property.h"
#include "storage/stored_properties.h"
#include "support/golden.h"

namespace rf {
namespace {

using test::at;

/// What the program leaves in the calendars, compared byte for byte: every user of an installation reads the bookings
/// of all the others, and what is linked to them.
class BookingGolden : public test::RulesTest, public ::testing::WithParamInterface<test::Locale> {
protected:
    BookingGolden()
    {
        regional = std::make_unique<PatternRegional>(GetParam().settings);
        begin();
        settings().PersonalCopy = true;
        copyToMaster(all);
    }

    /// The appointment of a calendar: what every host keeps of it, a line each, then its user properties.
    [[nodiscard]] std::string appointmentIn(host::FolderId calendar) const
    {
        const auto item = folder(calendar).items().item(1).as<outlook::AppointmentItem>();
        std::ostringstream lines;
        lines << "Subject \"" << test::escaped(item.subject()) << "\"\n"
              << "Categories \"" << test::escaped(item.categories()) << "\"\n"
              << "Location \"" << test::escaped(item.location()) << "\"\n"
              << "Start " << std::setprecision(17) << item.start().days() << "\n"
              << "Duration " << item.duration() << "\n"
              << "Body \"" << test::escaped(item.body()) << "\"\n"
              << test::storedProperties(item);
        return lines.str();
    }
    void expectBooking(const std::string& what, const std::string& bytes) const
    {
        test::expectGolden("booking/" + what + "." + GetParam().name + ".properties", bytes);
    }
};

/// A pair lies across the border of the first two pieces.
Text longOrder()
{
    return Text(999, u'x') + u"\U0001F37D\t12\r\nCr\u00E8me br\u00FBl\u00E9e\t12345\r\n" + Text(600, u'y')
        + u"\t-3\r\n";
}

TEST_P(BookingGolden, IsADroppedItemAfterItsOrderAndItsTwoCopies)
{
    const auto dropped = newAppointment(u"B\u00F6rse \U0001F4C8", at(14, 5), 90);
    dropped.setCategories(u"M\u00E4rkte");
    dropped.save();
    watch().ouisItems_ItemAdd(dropped);
    const auto booking = folder(room).items().item(1);
    setProperty(booking, u"OrderComment", u"2,5 l\r\nno milk");
    setProperty(booking, u"PlaceSetting", u"U shape");
    setProperty(booking, u"CostCenter", u"471100");
    subFixLongProperty(*session, booking, longOrder(), u"strOrders");
    booking.save();
    expectBooking("booking", appointmentIn(room));
    expectBooking("personal_copy", appointmentIn(own));
    expectBooking("master_copy", appointmentIn(all));
}

TEST_P(BookingGolden, IsTheListOfTheConflicts)
{
    booked(u"B\u00F6rse", at(9), 90);
    saved(u"Dropped; by another", at(23, 30), 20);
    Text conflicts = fncFindConflicts(*session, {}, at(0), at(23, 59), folder(room));
    // The host's own identifiers.
    for (const auto& item : stored(room))
        conflicts = replaceAll(conflicts, host::entryIdOf(item.id), u"ENTRY");
    conflicts = replaceAll(conflicts, folder(room).storeId(), u"STORE");
    test::expectGolden(std::string{"booking/conflicts."} + GetParam().name + ".txt", conflicts);
}

INSTANTIATE_TEST_SUITE_P(Locales, BookingGolden,
    ::testing::Values(test::Locale{"English", englishSettings()}, test::Locale{"German", germanSettings()}),
    ::testing::PrintToStringParamName());

} // namespace
} // namespace rf
