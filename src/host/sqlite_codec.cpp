#include "host/sqlite_codec.h"

#include <cstring>
#include <type_traits>

namespace rf::host {
namespace {

using automation::Array;
using automation::Variant;

/// What a value's kind is called in a file. The numbers never change their meaning.
enum class Tag : std::uint8_t {
    Empty = 0,
    Null = 1,
    Missing = 2,
    Truth = 3,
    Byte = 4,
    Integer = 5,
    Long = 6,
    Single = 7,
    Double = 8,
    Currency = 9,
    Date = 10,
    Text = 11,
    Array = 12,
};

/// Arrays inside arrays beyond this are no value but a damaged file.
constexpr int deepest = 1000;

class Writer {
public:
    template <class Number>
    requires std::is_arithmetic_v<Number>
    void put(Number number) { append(std::as_bytes(std::span{&number, 1})); }
    void put(Tag tag) { put(static_cast<std::uint8_t>(tag)); }
    void put(Date date) { put(date.days()); }
    void put(TextView text)
    {
        putCount(text.size());
        append(std::as_bytes(std::span{text}));
    }
    void put(const Variant& value) { std::visit(*this, value.value()); }
    void put(const UserPropertyRecord& property)
    {
        put(TextView{property.name});
        put(property.type);
        put(property.value);
    }
    void put(const FieldDefinition& field)
    {
        put(TextView{field.name});
        put(field.type);
    }
    void put(const OccurrenceChange& change)
    {
        put(change.original);
        put(change.deleted);
        put(change.start);
        put(change.end);
        for (const Text* text : {&change.subject, &change.body, &change.location, &change.categories})
            put(TextView{*text});
        putList(change.userProperties);
    }
    template <class Element>
    void putList(const std::vector<Element>& list)
    {
        putCount(list.size());
        for (const Element& element : list)
            put(element);
    }

    void operator()(std::monostate) { put(Tag::Empty); }
    void operator()(automation::Null) { put(Tag::Null); }
    void operator()(automation::Missing) { put(Tag::Missing); }
    void operator()(bool value) { putTagged(Tag::Truth, value); }
    void operator()(std::uint8_t value) { putTagged(Tag::Byte, value); }
    void operator()(std::int16_t value) { putTagged(Tag::Integer, value); }
    void operator()(std::int32_t value) { putTagged(Tag::Long, value); }
    void operator()(float value) { putTagged(Tag::Single, value); }
    void operator()(double value) { putTagged(Tag::Double, value); }
    void operator()(Currency value) { putTagged(Tag::Currency, value.tenThousandths()); }
    void operator()(Date value) { putTagged(Tag::Date, value); }
    void operator()(const Text& value) { putTagged(Tag::Text, TextView{value}); }
    void operator()(const std::shared_ptr<const Array>& value)
    {
        put(Tag::Array);
        putCount(value ? value->dimensions.size() : 0);
        if (value) {
            for (const Array::Dimension& dimension : value->dimensions) {
                put(dimension.lowerBound);
                put(dimension.size);
            }
            putList(value->values);
        } else {
            putCount(0);
        }
    }
    // A store takes references and objects out before it writes.
    void operator()(const std::shared_ptr<automation::Dispatch>&) { put(Tag::Empty); }
    void operator()(automation::Reference) { put(Tag::Empty); }

    [[nodiscard]] Bytes take() { return std::move(bytes_); }

private:
    void append(std::span<const std::byte> more)
    {
        const std::size_t end = bytes_.size();
        bytes_.resize(end + more.size());
        if (!more.empty())
            std::memcpy(bytes_.data() + end, more.data(), more.size());
    }
    void putCount(std::size_t count) { put(static_cast<std::uint32_t>(count)); }
    template <class Value>
    void putTagged(Tag tag, Value value)
    {
        put(tag);
        put(value);
    }

    Bytes bytes_;
};

/// Reads to the end or to the first thing that is not as it should be; from there on everything reads as empty.
class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes)
        : rest_(bytes)
    {
    }

    /// All was there, and nothing behind it.
    [[nodiscard]] bool isDone() const { return isWhole_ && rest_.empty(); }

    template <class Number>
    [[nodiscard]] Number number()
    {
        Number number{};
        if (const auto bytes = take(sizeof number); !bytes.empty())
            std::memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    [[nodiscard]] bool truth() { return number<std::uint8_t>() != 0; }
    [[nodiscard]] Date date() { return Date{number<double>()}; }
    [[nodiscard]] Text text()
    {
        const auto bytes = take(std::size_t{number<std::uint32_t>()} * sizeof(char16_t));
        Text text(bytes.size() / sizeof(char16_t), u'\0');
        if (!bytes.empty())
            std::memcpy(text.data(), bytes.data(), bytes.size());
        return text;
    }
    template <class Element, class Read>
    [[nodiscard]] std::vector<Element> list(const Read& read)
    {
        std::vector<Element> elements;
        for (auto left = number<std::uint32_t>(); left > 0 && isWhole_; --left)
            elements.push_back(read());
        return elements;
    }
    [[nodiscard]] std::vector<UserPropertyRecord> properties()
    {
        return list<UserPropertyRecord>([this] {
            UserPropertyRecord property;
            property.name = text();
            property.type = number<std::int32_t>();
            property.value = value(0);
            return property;
        });
    }
    [[nodiscard]] Variant value(int depth);

private:
    [[nodiscard]] std::span<const std::byte> take(std::size_t size)
    {
        if (!isWhole_ || size > rest_.size()) {
            isWhole_ = false;
            return {};
        }
        const auto taken = rest_.first(size);
        rest_ = rest_.subspan(size);
        return taken;
    }
    [[nodiscard]] Variant array(int depth);
    [[nodiscard]] Variant unknown()
    {
        isWhole_ = false;
        return {};
    }

    std::span<const std::byte> rest_;
    bool isWhole_ = true;
};

Variant Reader::value(int depth)
{
    switch (static_cast<Tag>(number<std::uint8_t>())) {
    case Tag::Empty:
        return {};
    case Tag::Null:
        return automation::Null{};
    case Tag::Missing:
        return automation::Missing{};
    case Tag::Truth:
        return truth();
    case Tag::Byte:
        return number<std::uint8_t>();
    case Tag::Integer:
        return number<std::int16_t>();
    case Tag::Long:
        return number<std::int32_t>();
    case Tag::Single:
        return number<float>();
    case Tag::Double:
        return number<double>();
    case Tag::Currency:
        return Currency::fromTenThousandths(number<std::int64_t>());
    case Tag::Date:
        return date();
    case Tag::Text:
        return text();
    case Tag::Array:
        return depth < deepest ? array(depth + 1) : unknown();
    }
    return unknown();
}

Variant Reader::array(int depth)
{
    Array array;
    array.dimensions = list<Array::Dimension>([this] {
        const auto lowerBound = number<std::int32_t>();
        return Array::Dimension{lowerBound, number<std::int32_t>()};
    });
    array.values = list<Variant>([this, depth] { return value(depth); });
    return array;
}

OccurrenceChange readChange(Reader& reader)
{
    OccurrenceChange change;
    change.original = reader.date();
    change.deleted = reader.truth();
    change.start = reader.date();
    change.end = reader.date();
    for (Text* text : {&change.subject, &change.body, &change.location, &change.categories})
        *text = reader.text();
    change.userProperties = reader.properties();
    return change;
}

template <class Value>
std::optional<Value> ifDone(const Reader& reader, Value value)
{
    return reader.isDone() ? std::optional{std::move(value)} : std::nullopt;
}

} // namespace

Bytes encode(const std::vector<UserPropertyRecord>& properties)
{
    Writer writer;
    writer.putList(properties);
    return writer.take();
}

Bytes encode(const RecurrenceRecord& recurrence)
{
    Writer writer;
    writer.put(TextView{recurrence.rule});
    writer.putList(recurrence.additions);
    writer.putList(recurrence.changes);
    writer.put(recurrence.lastEnd.has_value());
    writer.put(recurrence.lastEnd.value_or(Date{}));
    return writer.take();
}

Bytes encode(const std::vector<FieldDefinition>& fields)
{
    Writer writer;
    writer.putList(fields);
    return writer.take();
}

std::optional<std::vector<UserPropertyRecord>> decodeProperties(std::span<const std::byte> bytes)
{
    Reader reader{bytes};
    auto properties = reader.properties();
    return ifDone(reader, std::move(properties));
}

std::optional<RecurrenceRecord> decodeRecurrence(std::span<const std::byte> bytes)
{
    Reader reader{bytes};
    RecurrenceRecord recurrence;
    recurrence.rule = reader.text();
    recurrence.additions = reader.list<Date>([&] { return reader.date(); });
    recurrence.changes = reader.list<OccurrenceChange>([&] { return readChange(reader); });
    const bool ends = reader.truth();
    const Date lastEnd = reader.date();
    if (ends)
        recurrence.lastEnd = lastEnd;
    return ifDone(reader, std::move(recurrence));
}

std::optional<std::vector<FieldDefinition>> decodeFields(std::span<const std::byte> bytes)
{
    Reader reader{bytes};
    auto fields = reader.list<FieldDefinition>([&] {
        FieldDefinition field;
        field.name = reader.text();
        field.type = reader.number<std::int32_t>();
        return field;
    });
    return ifDone(reader, std::move(fields));
}

} // namespace rf::host
