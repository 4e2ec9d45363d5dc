#include "automation/conversion.h"
#include "basic/conversion.h"
#include "booking/outlook_booking.h"
#include "diagnostics/pending_error.h"
#include "orders/order_grid.h"
#include "storage/folder_path.h"
#include "storage/list_controls.h"
#include "storage/long_property.h"
#include "storage/outlook_value.h"
#include "storage/settings.h"
#include "support/bare_session.h"
#include "support/program_ended.h"

#include "fuzz_input.h"

#include <algorithm>
#include <unordered_set>

// Everything that the program reads out of the host's items has been written by somebody else: by other versions, by
// hand, under other regional settings. None of it may end the program, and what the program writes it reads again.

namespace rf::fuzz {
namespace {

using automation::Variant;
using test::BareSession;

/// A user property as another program has left it.
struct Property {
    Text name;
    outlook::UserPropertyType type = outlook::UserPropertyType::Text;
    Text value;
};

/// A text for whatever reads one and, behind form feeds, properties for whatever reads an item: each a name, "=", the
/// digit of its type, its value.
struct Input {
    Text text;
    std::vector<Property> properties;
};

outlook::UserPropertyType typeOf(char16_t digit)
{
    using outlook::UserPropertyType;
    for (const auto type : {UserPropertyType::Number, UserPropertyType::DateTime, UserPropertyType::YesNo})
        if (digit == u'0' + outlook::code(type))
            return type;
    return UserPropertyType::Text;
}

Input inputOf(TextView whole)
{
    Input input;
    for (bool isText = true; const TextView piece : splitViews(whole, u"\f")) {
        const auto sign = piece.find(u'=');
        if (isText)
            input.text = piece;
        else if (sign != TextView::npos && sign + 1 < piece.size())
            input.properties.push_back(
                {Text{piece.substr(0, sign)}, typeOf(piece[sign + 1]), Text{piece.substr(sign + 2)}});
        isText = false;
    }
    return input;
}

/// Gives an item the properties, as far as the host takes them.
void give(const outlook::Item& item, const std::vector<Property>& properties)
{
    PendingError errors;
    for (const Property& property : properties)
        errors.attempt(
            [&] { item.userProperties().add(property.name, property.type, false).setValue(property.value); });
}

/// Numbers that come again and again, and never make a colour that counts as none.
RandomNumbers steps()
{
    return [next = 0.0]() mutable {
        constexpr double step = 0.37;
        next += next + step < 1 ? step : step - 1;
        return next;
    };
}

/// A long text comes back unit by unit, and a shorter one behind it does too.
void checkLongText(BareSession& program, const Input& input)
{
    const auto item = program.newPost();
    const TextView text = input.text;
    for (const TextView written : {text, text.substr(0, text.size() / 2)}) {
        subFixLongProperty(program.session, item, written, u"strSupply");
        require(fncGetLongProperty(program.session, item, u"strSupply") == written);
    }
}

bool isOfKind(const Variant& value, ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return value.is<std::int16_t>() || value.is<double>();
    case ValueKind::Date:
        return value.is<Date>();
    case ValueKind::String:
        return value.is<Text>();
    case ValueKind::Boolean:
        return value.is<bool>() || value.isEmpty();
    }
    return false;
}

/// Whatever a property holds, it reads as a value of the kind that is asked for.
void checkValues(BareSession& program, const Input& input)
{
    const auto item = program.newPost();
    give(item, input.properties);
    for (const Property& property : input.properties) {
        for (const auto kind : {ValueKind::Integer, ValueKind::Date, ValueKind::String, ValueKind::Boolean})
            require(isOfKind(fncGetOutlookValue(program.session, item, property.name, kind, input.text), kind));
        static_cast<void>(fncGetLongProperty(program.session, item, property.name));
    }
}

/// A plain list has no empty entry and none twice. Only blanks at its two ends may be lost when it is written.
void checkSimpleList(BareSession& program, const Input& input)
{
    cSimpleList list{program.session};
    list.FromString(input.text);
    const auto entries = list.ToArray();
    cSimpleList again{program.session};
    again.FromString(list.ToString());
    using Entries = std::unordered_set<Text, HashIgnoringCase, EqualIgnoringCase>;
    Entries found;
    for (const Text& entry : again.ToArray())
        require(!entry.empty() && found.insert(entry).second);
    Entries seen;
    for (const Text& entry : entries) {
        require(!entry.empty() && seen.insert(entry).second);
        require(trim(entry) != entry || found.contains(entry));
    }
}

/// A list of projects is read as it was written, each project with a colour.
void checkProjects(BareSession& program, const Input& input)
{
    constexpr std::int32_t white = 0xFFFFFF;
    cProjects projects{program.session};
    projects.FromString(input.text);
    for (std::size_t place = 0; place < projects.projects().size(); ++place) {
        const std::int32_t color = projects.projects()[place].ProjectColor;
        require(color != white && (color != 0 || place + 1 == cProjects::colorSlots));
        require(projects.exists(projects.projects()[place].ProjectName));
    }
    const std::int32_t next = projects.GetNextColor();
    require(next >= 0 && next <= white);
    cProjects again{program.session};
    again.FromString(projects.ToString());
    require(again.ToString() == projects.ToString());
}

/// Rows of a table with a number in front, as lines and tabs have them; a column that is missing has no value.
std::shared_ptr<test::Table> tableOf(const Regional& regional, TextView text)
{
    constexpr std::size_t mostRows = 200;
    std::vector<std::vector<Variant>> rows;
    for (const TextView line : splitViews(text, lineBreak)) {
        const auto cells = splitViews(line, u"\t");
        if (rows.size() == mostRows)
            break;
        Variant value = automation::Null{};
        if (!cells.empty()) {
            const auto number = regional.parseNumber(cells.back());
            value = number ? Variant{*number} : Variant{cells.back()};
        }
        rows.push_back({static_cast<std::int32_t>(rows.size()), value});
    }
    return std::make_shared<test::Table>(std::vector<Text>{u"Id", u"Setting"}, std::move(rows));
}

/// A list out of a table is that of its second column, and a table that is given the list has every entry then.
void checkRecordset(BareSession& program, const Input& input)
{
    const Regional& regional = program.session.services.regional;
    const auto table = tableOf(regional, input.text);
    const outlook::Recordset recordset{automation::Object{table}};
    std::vector<Text> column;
    for (const auto& row : table->rows)
        if (!row[1].is<automation::Null>())
            column.push_back(automation::toText(regional, row[1]));
    cSimpleList expected{program.session};
    expected.FromArray(column);
    cSimpleList list{program.session};
    list.FromRS(recordset);
    require(list.ToArray() == expected.ToArray());

    const auto empty = std::make_shared<test::Table>(table->columns, std::vector<std::vector<Variant>>{});
    for (int times = 0; times < 2; ++times) {
        list.ToRS(outlook::Recordset{automation::Object{empty}});
        require(std::cmp_equal(empty->rows.size(), list.count()));
    }
}

/// An order at a supply list is written and read alike, with keys from 1 on, whatever the two texts are.
void checkBooking(BareSession& program, const Input& input)
{
    Session& session = program.session;
    session.objSettings = std::make_unique<cSettings>(session);
    session.objSettings->subFillSupply(input.text);
    const auto item = session.ounNameSpace.getDefaultFolder(outlook::DefaultFolder::Calendar)
                          .items()
                          .add()
                          .as<outlook::AppointmentItem>();
    subFixLongProperty(session, item, input.text, u"strOrders");
    OutlookBooking booking{session};
    booking.subGetAppData(item);
    const cOrders orders = booking.Orders();
    const auto keys = orders.OrderRows().keys();
    for (std::size_t place = 0; place < keys.size(); ++place)
        require(keys[place] == decimal(static_cast<long long>(place) + 1));
    subFixLongProperty(session, item, orders.OrdersString(), u"strOrders");
    booking.subGetAppData(item);
    require(booking.Orders().OrdersString() == orders.OrdersString());
    try {
        static_cast<void>(
            rf::orders::gridQuantities(session.services.regional, session.objSettings->Supply.items(), input.text));
    } catch (const RuntimeError& error) {
        require(error.number() == error_number::overflow || error.number() == error_number::subscriptOutOfRange);
    }
}

/// A reference leads to a folder of its name or nowhere, and the folder's own path leads back to it.
void checkFolder(BareSession& program, const Input& input)
{
    const Text& text = input.text;
    cOutlookFolder reference{program.session};
    reference.Path = text;
    if (const auto folder = reference.GetFolder()) {
        const Text path = fncGetFolderPath(program.session, folder, program.session.ounNameSpace);
        require(fncGetFolderFromPath(program.session, path) == folder);
    }
    reference.EntryID = text;
    reference.StoreID = text.substr(text.size() / 2);
    reference.Name = text.substr(0, text.size() / 2);
    const auto named = reference.GetFolder();
    require(!named || reference.Name.empty() || named.name() == reference.Name);
    const auto item = program.newPost();
    reference.SaveToOutlookProps(item, u"Master");
    cOutlookFolder again{program.session};
    again.GetFromOutlookProps(item, u"Master");
    require(again.Path == reference.Path && again.EntryID == reference.EntryID && again.StoreID == reference.StoreID
        && again.Name == reference.Name);
}

/// The one description of a resource is found by any name, and is as it was when it is saved and loaded again.
void checkDescription(BareSession& program, const Input& input)
{
    const auto post = program.newPost();
    post.setSubject(input.text);
    give(post, input.properties);
    post.save();
    cResourceDescription description{program.session};
    description.setResourceName(input.text);
    require(program.session.objRootFolder.items().count() == 1);
    try {
        description.SaveResourceDesc();
    } catch (const test::ProgramEnded&) {
        // A property of another type than it is to have does not take every value.
        return;
    }
    cResourceDescription again{program.session};
    again.setResourceName(input.text);
    require(again.ResourceDescHTML() == description.ResourceDescHTML() && again.intSeats == description.intSeats
        && again.curRate == description.curRate);
}

/// What the settings hold and write, but the list that loses blanks at its ends.
Text written(const cSettings& settings)
{
    const auto truth = [](bool value) { return value ? Text{u"1"} : Text{u"0"}; };
    return settings.fncBuildSupplyList() + settings.Projects.ToString() + settings.NewItemTemplate + u"|"
        + settings.DefaultPlaceSetting + u"|" + settings.KCFormat + u"|" + settings.ProjectCaption + u"|"
        + decimal(settings.CurrentSelectedLanguage) + u"|" + truth(settings.ShowOverview)
        + truth(settings.ProjectMandatory) + truth(settings.NoDoubles) + truth(settings.NoRecurring)
        + truth(settings.PersonalCopy) + truth(settings.MasterCopy) + settings.objOUMasterFolder.Path + u"|"
        + settings.objOUMasterFolder.EntryID;
}

bool areTexts(const std::vector<Property>& properties)
{
    return std::ranges::all_of(
        properties, [](const Property& property) { return property.type == outlook::UserPropertyType::Text; });
}

/// The calendars that a post lists are cut to so many names: each gets a description, which is looked for among all
/// others.
std::vector<Property> withFewCalendars(std::vector<Property> properties)
{
    constexpr std::size_t mostOfAPiece = 300;
    for (Property& property : properties)
        if (property.value.size() > mostOfAPiece)
            property.value.resize(mostOfAPiece);
    return properties;
}

/// Any settings post loads, and one of texts gives back what is saved.
void checkSettings(BareSession& program, const Input& input)
{
    Session& session = program.session;
    const auto post = program.newPost();
    post.setSubject(u"Settings");
    give(post, withFewCalendars(input.properties));
    post.save();
    cSettings settings{session};
    settings.GetSettings(false);
    require(isNumeric(session.services.regional, settings.KCFormat));
    const Text before = written(settings);
    try {
        settings.SaveSettings();
    } catch (const test::ProgramEnded&) {
        return;
    }
    cSettings again{session};
    again.GetSettings(false);
    require(!areTexts(input.properties) || written(again) == before);
    require(again.Calendars.keys() == settings.Calendars.keys());
}

/// Runs a check in a program of its own.
template <auto run>
void inProgram(const Input& input)
{
    BareSession program{germanSettings()};
    program.session.randomNumbers = steps();
    run(program, input);
}

/// The first unit of an input says which of them reads the rest: "a" the first.
constexpr void (*readers[])(const Input&) = {inProgram<checkLongText>, inProgram<checkValues>,
    inProgram<checkSimpleList>, inProgram<checkProjects>, inProgram<checkRecordset>, inProgram<checkBooking>,
    inProgram<checkFolder>, inProgram<checkDescription>, inProgram<checkSettings>};

void check(TextView whole)
{
    if (!whole.empty())
        readers[static_cast<std::size_t>(whole.front() - u'a') % std::size(readers)](inputOf(whole.substr(1)));
}

} // namespace
} // namespace rf::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    rf::fuzz::check(rf::fuzz::unitsOf(bytes, size));
    return 0;
}
