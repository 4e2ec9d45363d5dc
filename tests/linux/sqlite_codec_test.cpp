#include "host/sqlite_codec.h"

#include "host/store/store_fixture.h"

#include <random>

namespace rf::host::test {
namespace {

using automation::Array;
using automation::Variant;

std::vector<UserPropertyRecord> someProperties()
{
    return {{u"Text", 1, Text{u"a\xD800"}}, {u"Number", 3, -2.5},
        {u"Array", 1, Variant{Array{{{1, 2}}, {Array::list({true}), automation::Null{}}}}}};
}

RecurrenceRecord someRecurrence()
{
    OccurrenceChange change = moved(at(1), at(2), at(3));
    change.userProperties = someProperties();
    return {.rule = u"FREQ=DAILY", .additions = {at(4)}, .changes = {change}, .lastEnd = at(5)};
}

TEST(SqliteCodec, GivesBackWhatItWasGiven)
{
    const std::vector<FieldDefinition> fields{{u"Link", 1}, {u"", 6}};

    EXPECT_EQ(decodeProperties(encode(someProperties())), someProperties());
    EXPECT_EQ(decodeRecurrence(encode(someRecurrence())), someRecurrence());
    EXPECT_EQ(decodeFields(encode(fields)), fields);
}

TEST(SqliteCodec, RefusesBytesThatEndEarlyOrLate)
{
    Bytes bytes = encode(someRecurrence());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(decodeRecurrence(std::span{bytes}.first(size))) << size;
    bytes.push_back(std::byte{0});
    EXPECT_FALSE(decodeRecurrence(bytes));
}

TEST(SqliteCodec, RefusesAKindThatItDoesNotKnow)
{
    Bytes bytes = encode(std::vector<UserPropertyRecord>{{u"", 1, {}}});
    bytes.back() = std::byte{200};

    EXPECT_FALSE(decodeProperties(bytes));
}

TEST(SqliteCodec, StandsAnyBytes)
{
    std::mt19937 random{4711};
    const Bytes whole = encode(someRecurrence());
    for (int round = 0; round < 20'000; ++round) {
        Bytes bytes = whole;
        for (int change = 0; change < 3; ++change)
            bytes[random() % bytes.size()] = static_cast<std::byte>(random());
        (void)decodeRecurrence(bytes);
        (void)decodeProperties(std::span{bytes}.subspan(random() % bytes.size()));
    }
}

} // namespace
} // namespace rf::host::test
