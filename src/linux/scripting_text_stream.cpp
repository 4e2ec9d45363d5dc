#include "linux/scripting_text_stream.h"

#include "linux/scripting_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace rf::native {

using automation::Arguments;
using automation::Variant;

namespace {

constexpr char16_t byteOrderMark = u'\xFEFF';

std::string readBytes(const FileDescriptor& file)
{
    std::string bytes;
    std::array<char, 65536> block{};
    for (;;) {
        const auto count = ::read(file.get(), block.data(), block.size());
        if (count > 0)
            bytes.append(block.data(), static_cast<std::size_t>(count));
        else if (count == 0)
            return bytes;
        else if (errno != EINTR)
            throw fileError(errno, ScriptingTextStream::className);
    }
}

void writeBytes(const FileDescriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = ::write(file.get(), bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw fileError(errno, ScriptingTextStream::className);
    }
}

std::string toUtf16Bytes(TextView text)
{
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

Text fromUtf16Bytes(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes[at]);
        const auto high = static_cast<unsigned char>(bytes[at + 1]);
        text.push_back(static_cast<char16_t>(low | high << 8));
    }
    if (text.starts_with(byteOrderMark))
        text.erase(0, 1);
    return text;
}

bool isEmpty(const FileDescriptor& file)
{
    struct stat status { };
    return ::fstat(file.get(), &status) == 0 && status.st_size == 0;
}

} // namespace

FileDescriptor::~FileDescriptor()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

int FileDescriptor::close() { return ::close(std::exchange(descriptor_, -1)) == 0 ? 0 : errno; }

std::span<const automation::LocalMember<ScriptingTextStream>> ScriptingTextStream::members()
{
    using Self = ScriptingTextStream;
    static constexpr automation::LocalMember<Self> table[]{
        {u"AtEndOfStream", [](Self& self, const Arguments&) { return Variant{self.atEnd()}; }},
        {u"ReadAll", [](Self& self, const Arguments&) { return Variant{self.readAll()}; }},
        {u"ReadLine", [](Self& self, const Arguments&) { return Variant{self.readLine()}; }},
        {u"Write",
            [](Self& self, const Arguments& arguments) {
                self.write(arguments[0].text());
                return Variant{};
            }},
        {u"WriteLine",
            [](Self& self, const Arguments& arguments) {
                self.write((arguments.has(0) ? arguments[0].text() : Text{}).append(lineBreak));
                return Variant{};
            }},
        {u"Close",
            [](Self& self, const Arguments&) {
                self.close();
                return Variant{};
            }},
    };
    return table;
}

ScriptingTextStream::ScriptingTextStream(Read, const FileDescriptor& file, TextEncoding encoding)
{
    const auto bytes = readBytes(file);
    state_ = Reader{encoding == TextEncoding::Unicode ? fromUtf16Bytes(bytes) : fromUtf8(bytes)};
}

ScriptingTextStream::ScriptingTextStream(Write, FileDescriptor file, TextEncoding encoding)
{
    if (encoding == TextEncoding::Unicode && isEmpty(file))
        writeBytes(file, toUtf16Bytes({&byteOrderMark, 1}));
    state_ = Writer{std::move(file), encoding};
}

template <class Mode>
Mode& ScriptingTextStream::opened()
{
    if (std::holds_alternative<Closed>(state_))
        throw scriptingError(error_number::objectNotSet, className);
    if (auto* mode = std::get_if<Mode>(&state_))
        return *mode;
    throw scriptingError(scripting_error::badFileMode, className);
}

bool ScriptingTextStream::atEnd()
{
    const auto& reader = opened<Reader>();
    return reader.position == reader.content.size();
}

Text ScriptingTextStream::readAll()
{
    auto& reader = opened<Reader>();
    if (atEnd())
        throw scriptingError(scripting_error::inputPastEnd, className);
    const auto from = std::exchange(reader.position, reader.content.size());
    return reader.content.substr(from);
}

Text ScriptingTextStream::readLine()
{
    auto& reader = opened<Reader>();
    if (atEnd())
        throw scriptingError(scripting_error::inputPastEnd, className);
    const auto from = reader.position;
    const auto end = std::min(reader.content.find(u'\n', from), reader.content.size());
    reader.position = std::min(end + 1, reader.content.size());
    Text line = reader.content.substr(from, end - from);
    if (line.ends_with(u'\r'))
        line.pop_back();
    return line;
}

void ScriptingTextStream::write(TextView text)
{
    const auto& writer = opened<Writer>();
    writeBytes(writer.file, writer.encoding == TextEncoding::Unicode ? toUtf16Bytes(text) : toUtf8(text));
}

/// Some file systems report a full disk only now.
void ScriptingTextStream::close()
{
    auto* writer = std::get_if<Writer>(&state_);
    const int failure = writer == nullptr ? 0 : writer->file.close();
    state_ = Closed{};
    if (failure != 0)
        throw fileError(failure, className);
}

} // namespace rf::native
