#include "storage/long_property.h"
#include "storage/outlook_folder.h"
#include "storage/outlook_value.h"
#include "storage/projects.h"
#include "storage/resource_description.h"
#include "storage/simple_list.h"
#include "storage/storage_fixture.h"
#include "storage/stored_properties.h"
#include "support/golden.h"

#include <deque>

namespace rf {
namespace {

using automation::Variant;

/// What the program writes, compared byte for byte: other installations and older versions read it.
class StorageGolden : public test::StorageTest, public ::testing::WithParamInterface<test::Locale> {
protected:
    StorageGolden()
        : StorageTest(GetParam().settings)
    {
    }
};

/// A pair lies across the border of the first two pieces, and another one across the next.
Text longText()
{
    Text text;
    for (int line = 1; text.size() < 2600; ++line)
        text += u"Line " + decimal(line) + u"\twith a tab\r\n";
    text.replace(999, 2, u"\U0001F37D");
    text.replace(1999, 2, u"\U0001F600");
    return text;
}

TEST_P(StorageGolden, LongText)
{
    const auto item = newPost();
    subFixLongProperty(session, item, longText(), u"strSupply");
    test::expectGolden("storage/long_text.properties", test::storedProperties(item));
    EXPECT_EQ(fncGetLongProperty(session, item, u"strSupply"), longText());
}

TEST_P(StorageGolden, Values)
{
    const auto item = newPost();
    const auto write = [&](TextView name, const Variant& value, ValueKind kind) {
        subSetOutlookValue(session, item, name, value, kind, false);
    };
    write(u"intSeats", std::int16_t{12}, ValueKind::Integer);
    write(u"OriginalDuration", 40320.0, ValueKind::Integer);
    write(u"OriginalStartDate", Date::fromFields({2007, 3, 5, 9, 4, 0}), ValueKind::Date);
    write(u"CostCenter", u"47\u00FC11 \U0001F600", ValueKind::String);
    write(u"NumberAsText", 1234.5, ValueKind::String);
    write(u"MoneyAsText", Currency::fromTenThousandths(12'345'000), ValueKind::String);
    write(u"DateAsText", Date::fromFields({2007, 3, 5, 9, 4, 0}), ValueKind::String);
    write(u"TruthAsText", true, ValueKind::String);
    write(u"blnNoDoubles", true, ValueKind::Boolean);
    write(u"blnManage", false, ValueKind::Boolean);
    test::expectGolden(std::string{"storage/values."} + GetParam().name + ".properties", test::storedProperties(item));
}

TEST_P(StorageGolden, SimpleList)
{
    cSimpleList list{session};
    list.FromString(
        u"U shape\r\n\r\nTheatre \r\n Boardroom\r\nTHEATRE \r\nC\u00E9r\u00E9monie \U0001F600\r\n2,5 m\r\n");
    test::expectGolden("storage/simple_list.txt", list.ToString());
}

TEST_P(StorageGolden, Projects)
{
    session.randomNumbers = [left = std::deque<double>{0.1, 0.5, 0.999}]() mutable {
        const double number = left.at(0);
        left.pop_front();
        return number;
    };
    cProjects projects{session};
    Text text = u"Marketing;33023\r\nSales\u00FC;0\r\nResearch;16777215\r\nHouse;255\r\nmarketing;1\r\n";
    for (int number = 5; number <= 22; ++number)
        text += u"Project " + decimal(number) + u";0\r\n";
    projects.FromString(text);
    test::expectGolden("storage/projects.txt", projects.ToString());
}

TEST_P(StorageGolden, FolderReference)
{
    const auto item = newPost();
    cOutlookFolder reference{session};
    reference.Name = u"R\u00E4ume";
    reference.EntryID = u"00000000A1B2";
    reference.StoreID = u"0000C3D4";
    reference.Path = u"\\\\Public Folders\\All Public Folders\\R\u00E4ume";
    reference.SaveToOutlookProps(item);
    reference.Name = u"Copies";
    reference.SaveToOutlookProps(item, u"Master");
    test::expectGolden("storage/folder_reference.properties", test::storedProperties(item));
}

TEST_P(StorageGolden, ResourceDescription)
{
    cResourceDescription description{session};
    description.setResourceName(u"Conference Room 12");
    description.setResourceDescHTML(u"<p>Zweiter Stock, 2,5 m hoch \U0001F600</p>\r\n");
    description.intSeats = 250;
    description.curRate = Currency::fromTenThousandths(12'345'678);
    description.SaveResourceDesc();
    const auto item = session.objRootFolder.items().item(u"Conference Room 12");
    test::expectGolden("storage/resource_description.properties", test::storedProperties(item));
}

INSTANTIATE_TEST_SUITE_P(Locales, StorageGolden,
    ::testing::Values(test::Locale{"English", englishSettings()}, test::Locale{"German", germanSettings()}),
    ::testing::PrintToStringParamName());

} // namespace
} // namespace rf
