#pragma once

#include "host/store/store_fixture.h"

#include <limits>

namespace rf::host::test {

using automation::Array;
using automation::Variant;

namespace {

/// An object that nothing can be asked.
std::shared_ptr<automation::Dispatch> someObject()
{
    // The store only looks at the kind, so a pointer without an object behind it serves.
    return {std::make_shared<int>(0), nullptr};
}

} // namespace

TEST_P(StoreSuite, KeepsTextDownToHalfASurrogatePair)
{
    const Text high{u'\xD83D'};
    const Text low{u'\xDE00'};
    const Text odd = low + u'\0' + high + u"\uFFFF\uFEFFx" + high;
    FolderRecord folder = calendar(odd);
    folder.webViewUrl = odd;
    folder.fields = {{odd, 1}};
    folder.id = store().addFolder(folder);
    EXPECT_EQ(store().folders().back(), folder);

    ItemRecord item = appointment(room(), odd, at(1), at(1));
    item.messageClass = item.body = item.categories = item.location = item.to = item.timeZone = item.uid = odd;
    item.userProperties = {{odd, 1, odd}, {high, 1, low}};
    item.recurrence = RecurrenceRecord{.rule = odd, .additions = {}, .changes = {}, .lastEnd = {}};
    store().save(item);
    EXPECT_EQ(store().read(item.id), item);
    EXPECT_EQ(store().withSubject(room(), odd), std::vector{item.id});
    EXPECT_EQ(store().withProperty(room(), high, low), std::vector{item.id});
    EXPECT_TRUE(store().withProperty(room(), low, high).empty());
}

TEST_P(StoreSuite, KeepsABodyOfAMegabyte)
{
    ItemRecord item = appointment(room(), u"Long", at(1), at(1));
    while (item.body.size() < 1'000'000)
        item.body += u"All work and no play \xDE00";
    item.userProperties = {{u"Long", 1, item.body}};
    store().save(item);

    EXPECT_EQ(store().read(item.id), item);
    EXPECT_EQ(store().withProperty(room(), u"Long", item.body), std::vector{item.id});
}

TEST_P(StoreSuite, KeepsEveryKindOfValue)
{
    const std::vector<Variant> values{
        {},
        automation::Null{},
        automation::Missing{},
        true,
        false,
        std::uint8_t{255},
        std::int16_t{-32768},
        std::numeric_limits<std::int32_t>::min(),
        1.5F,
        -0.1,
        std::numeric_limits<double>::infinity(),
        Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min()),
        at(1, 77),
        Text{},
        Text{u"text"},
        Array::list({}),
        Array{{{1, 2}, {-1, 1}}, {Text{u"a"}, Array::list({std::int32_t{7}, Variant{}})}},
    };
    ItemRecord item = appointment(room(), u"Values", at(1), at(1));
    for (std::size_t index = 0; index < values.size(); ++index)
        item.userProperties.push_back({u"Property " + decimal(static_cast<long long>(index)), 1, values[index]});
    store().save(item);

    EXPECT_EQ(store().read(item.id)->userProperties, item.userProperties);
}

TEST_P(StoreSuite, KeepsWhatAReferenceRefersTo)
{
    Variant target = Text{u"target"};
    ItemRecord item = appointment(room(), u"Reference", at(1), at(1));
    item.userProperties = {{u"Link", 1, automation::Reference{&target}}};

    EXPECT_EQ(kept(item).userProperties.front().value, target);
}

TEST_P(StoreSuite, RefusesAnObjectAsValue)
{
    ItemRecord item = appointment(room(), u"Object", at(1), at(1));
    for (const Variant& value : {Variant{someObject()}, Variant{Array::list({someObject()})}}) {
        item.userProperties = {{u"Link", 1, value}};
        EXPECT_THROW(store().save(item), RuntimeError);
    }
    EXPECT_EQ(store().count(room()), 0U);
}

TEST_P(StoreSuite, ReplacesTheValuesOfAnItem)
{
    ItemRecord item = appointment(room(), u"Values", at(1), at(1));
    item.userProperties = {{u"Link", 1, Text{u"A"}}, {u"Amount", 3, 1.0}};
    store().save(item);
    item.userProperties = {{u"Link", 1, Text{u"B"}}};
    store().save(item);

    EXPECT_EQ(store().read(item.id)->userProperties, item.userProperties);
    EXPECT_TRUE(store().withProperty(room(), u"Link", u"A").empty());
    EXPECT_EQ(store().withProperty(room(), u"Link", u"B"), std::vector{item.id});
}

} // namespace rf::host::test
