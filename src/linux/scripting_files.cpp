#include "linux/scripting_files.h"

#include "linux/scripting_error.h"
#include "linux/scripting_text_stream.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <system_error>
#include <unistd.h>

namespace rf::native {

using automation::Arguments;
using automation::Object;
using automation::Variant;

namespace {

constexpr TextView className = ScriptingFileSystem::className;

enum class SpecialFolder : std::int32_t { Windows = 0, System = 1, Temporary = 2 };
enum class OpenMode : std::int32_t { Read = 1, Write = 2, Append = 8 };

/// A name that no system call can take: it would be cut at the zero.
bool isUsable(TextView path) { return path.find(u'\0') == TextView::npos; }

std::string pathOf(const Variant& argument)
{
    const Text path = argument.text();
    if (!isUsable(path))
        throw scriptingError(scripting_error::badFileName, className);
    return toUtf8(path);
}

bool folderExists(const std::filesystem::path& path)
{
    std::error_code failure;
    return std::filesystem::is_directory(path, failure);
}

bool fileExists(const std::filesystem::path& path)
{
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

automation::Error failureAt(const std::filesystem::path& path, int systemError)
{
    const auto folder = path.parent_path();
    if (systemError == ENOENT && !folder.empty() && !folderExists(folder))
        return scriptingError(scripting_error::pathNotFound, className);
    return fileError(systemError, className);
}

FileDescriptor open(const std::string& path, int flags)
{
    constexpr mode_t readableAndWritable = 0666;
    const int descriptor = ::open(path.c_str(), flags | O_CLOEXEC, readableAndWritable);
    if (descriptor < 0)
        throw failureAt(path, errno);
    return FileDescriptor{descriptor};
}

Variant readingStream(FileDescriptor file, TextEncoding encoding)
{
    return Object{std::make_shared<ScriptingTextStream>(ScriptingTextStream::Read{}, file, encoding)};
}

Variant writingStream(FileDescriptor file, TextEncoding encoding)
{
    return Object{std::make_shared<ScriptingTextStream>(ScriptingTextStream::Write{}, std::move(file), encoding)};
}

TextEncoding encodingOf(const Variant& format)
{
    constexpr std::int32_t unicode = -1;
    return format.integer32() == unicode ? TextEncoding::Unicode : TextEncoding::Ansi;
}

Variant openTextFile(const Arguments& arguments)
{
    const auto path = pathOf(arguments[0]);
    const auto mode = arguments.has(1) ? static_cast<OpenMode>(arguments[1].integer32()) : OpenMode::Read;
    const int create = arguments.has(2) && arguments[2].boolean() ? O_CREAT : 0;
    const auto encoding = arguments.has(3) ? encodingOf(arguments[3]) : TextEncoding::Ansi;
    switch (mode) {
    case OpenMode::Read:
        return readingStream(open(path, O_RDONLY | create), encoding);
    case OpenMode::Write:
        return writingStream(open(path, O_WRONLY | O_TRUNC | create), encoding);
    case OpenMode::Append:
        return writingStream(open(path, O_WRONLY | O_APPEND | create), encoding);
    }
    throw scriptingError(error_number::invalidCall, className);
}

Variant createTextFile(const Arguments& arguments)
{
    const auto path = pathOf(arguments[0]);
    const bool overwrite = !arguments.has(1) || arguments[1].boolean();
    const bool unicode = arguments.has(2) && arguments[2].boolean();
    auto file = open(path, O_WRONLY | O_CREAT | (overwrite ? O_TRUNC : O_EXCL));
    return writingStream(std::move(file), unicode ? TextEncoding::Unicode : TextEncoding::Ansi);
}

/// A file that may not be written counts as read-only, and goes only when it is forced.
void deleteFile(const Arguments& arguments)
{
    const auto path = pathOf(arguments[0]);
    const bool force = arguments.has(1) && arguments[1].boolean();
    if (folderExists(path))
        throw fileError(ENOENT, className);
    if (!force && ::access(path.c_str(), W_OK) != 0)
        throw failureAt(path, errno);
    if (::unlink(path.c_str()) != 0)
        throw failureAt(path, errno);
}

Text temporaryFolder()
{
    const char* named = std::getenv("TMPDIR");
    std::string path = named == nullptr || *named == '\0' ? "/tmp" : named;
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return fromUtf8(path);
}

Variant specialFolder(const Variant& which)
{
    switch (static_cast<SpecialFolder>(which.integer32())) {
    case SpecialFolder::Windows:
        return Object{std::make_shared<ScriptingFolder>(u"/usr")};
    case SpecialFolder::System:
        return Object{std::make_shared<ScriptingFolder>(u"/usr/lib")};
    case SpecialFolder::Temporary:
        return Object{std::make_shared<ScriptingFolder>(temporaryFolder())};
    }
    throw scriptingError(error_number::invalidCall, className);
}

/// Such as "rad3F01C.tmp".
Text temporaryName()
{
    constexpr TextView digits = u"0123456789ABCDEF";
    std::random_device random;
    Text name = u"rad";
    for (int count = 0; count < 5; ++count)
        name += digits[random() % digits.size()];
    return name + u".tmp";
}

Text builtPath(Text path, TextView name)
{
    constexpr char16_t separator = u'/';
    if (path.empty() || name.empty())
        return path.append(name);
    if (name.starts_with(separator))
        name.remove_prefix(1);
    if (!path.ends_with(separator))
        path.push_back(separator);
    return path.append(name);
}

} // namespace

std::span<const automation::LocalMember<ScriptingFileSystem>> ScriptingFileSystem::members()
{
    using Self = ScriptingFileSystem;
    static constexpr automation::LocalMember<Self> table[]{
        {u"GetSpecialFolder", [](Self&, const Arguments& arguments) { return specialFolder(arguments[0]); }},
        {u"GetTempName", [](Self&, const Arguments&) { return Variant{temporaryName()}; }},
        {u"BuildPath",
            [](Self&, const Arguments& arguments) {
                return Variant{builtPath(arguments[0].text(), arguments[1].text())};
            }},
        {u"FileExists",
            [](Self&, const Arguments& arguments) {
                const Text path = arguments[0].text();
                return Variant{isUsable(path) && fileExists(toUtf8(path))};
            }},
        {u"FolderExists",
            [](Self&, const Arguments& arguments) {
                const Text path = arguments[0].text();
                return Variant{isUsable(path) && folderExists(toUtf8(path))};
            }},
        {u"OpenTextFile", [](Self&, const Arguments& arguments) { return openTextFile(arguments); }},
        {u"CreateTextFile", [](Self&, const Arguments& arguments) { return createTextFile(arguments); }},
        {u"DeleteFile",
            [](Self&, const Arguments& arguments) {
                deleteFile(arguments);
                return Variant{};
            }},
    };
    return table;
}

std::span<const automation::LocalMember<ScriptingFolder>> ScriptingFolder::members()
{
    using Self = ScriptingFolder;
    static constexpr automation::LocalMember<Self> table[]{
        {u"Path", [](Self& self, const Arguments&) { return Variant{self.path_}; }},
    };
    return table;
}

} // namespace rf::native
