#include "linux/demo/installation.h"

#include "app/session.h"
#include "booking/booking_properties.h"
#include "booking/overlap_filter.h"
#include "diagnostics/pending_error.h"
#include "outlook/appointment_item.h"
#include "storage/folder_path.h"
#include "storage/outlook_value.h"
#include "storage/settings.h"

#include <array>

namespace rf::demo {

namespace {

constexpr TextView publicPath = u"\\\\Public Folders\\All Public Folders";
constexpr TextView rootName = u"Roomfold";
/// Beside the root folder: in it every copy would be taken for a booking of one more room.
constexpr TextView masterName = u"All bookings";

struct Supply {
    TextView name;
    std::int64_t cents;
};
constexpr std::array supplies{Supply{u"Coffee", 250}, Supply{u"Tea", 200}, Supply{u"Mineral water", 150},
    Supply{u"Sandwich", 475}, Supply{u"Flip chart", 0}, Supply{u"Microphone", 1200}};
constexpr std::array<TextView, 4> placeSettings{u"Theatre", u"Classroom", u"U shape", u"Boardroom"};
constexpr std::int64_t tenThousandthsOfACent = 100;

outlook::Folder ensureCalendar(const outlook::Folders& folders, TextView name)
{
    PendingError errors;
    if (auto folder = errors.attempt([&] { return folders.item(name); }))
        return folder;
    return folders.add(name, outlook::DefaultFolder::Calendar);
}

void describeCatering(cSettings& settings)
{
    for (const Supply& supply : supplies)
        settings.Supply.add(supply.name,
            cSupplyItem{Currency::fromTenThousandths(supply.cents * tenThousandthsOfACent), Text{supply.name}});
    std::vector<Text> entries{placeSettings.begin(), placeSettings.end()};
    settings.PlaceSettings.FromArray(entries);
    settings.DefaultPlaceSetting = placeSettings.front();
}

void describeRules(Session& session, cSettings& settings, const outlook::Folder& master)
{
    settings.NoDoubles = settings.ProjectMandatory = true;
    settings.PersonalCopy = settings.MasterCopy = true;
    settings.objOUMasterFolder.EntryID = master.entryId();
    settings.objOUMasterFolder.StoreID = master.storeId();
    settings.objOUMasterFolder.Name = master.name();
    settings.objOUMasterFolder.Path = fncGetFolderPath(session, master, session.ounNameSpace);
}

/// Adds the projects that are missing; whether any was.
bool addProjects(cSettings& settings, std::span<const Talk> talks)
{
    Text lines;
    for (const Text& project : projectsOf(talks))
        if (!settings.Projects.exists(project))
            lines += project + u";0" + Text{lineBreak};
    settings.Projects.FromString(lines);
    return !lines.empty();
}

} // namespace

Installation prepareInstallation(Session& session, std::span<const Talk> talks)
{
    Installation installation;
    const outlook::Folders folders = fncGetFolderFromPath(session, publicPath).folders();
    installation.root = folders.item(rootName);
    installation.master = ensureCalendar(folders, masterName);
    installation.personal = session.ounNameSpace.getDefaultFolder(outlook::DefaultFolder::Calendar);
    for (const Text& room : roomsOf(talks))
        installation.rooms.emplace(room, ensureCalendar(installation.root.folders(), room));
    session.objRootFolder = installation.root;
    session.objSettings = std::make_unique<cSettings>(session);
    cSettings& settings = *session.objSettings;
    settings.GetSettings(false);
    installation.isNew = settings.objOUMasterFolder.EntryID.empty();
    if (installation.isNew) {
        describeCatering(settings);
        describeRules(session, settings, installation.master);
    }
    if (addProjects(settings, talks) || installation.isNew)
        settings.SaveSettings();
    return installation;
}

std::vector<Booking> bookingsOf(Session& session, const outlook::Folder& folder, const Text& room, const Weeks& weeks)
{
    std::vector<Booking> bookings;
    const auto items = folder.items();
    if (items.count() == 0)
        return bookings;
    const auto textOf = [&](const outlook::Item& item, BookingProperty property) {
        return fncGetOutlookValue(session, item, nameOf(property), ValueKind::String, u"").text();
    };
    items.sort(outlook::field::start);
    const Text filter = fncMakeOverlapFilter(session.services.regional, weeks.from, weeks.to);
    for (auto item = items.find(filter).as<outlook::AppointmentItem>(); item;
         item = items.findNext().as<outlook::AppointmentItem>())
        bookings.push_back({room, item.entryId(), item.subject(), item.start(), item.duration(),
            !textOf(item, BookingProperty::SafeOrganizer).empty(), textOf(item, BookingProperty::LinkIdentifier)});
    return bookings;
}

} // namespace rf::demo
