#pragma once

#include "basic/system.h"
#include "outlook/proxy.h"

#include <vector>

namespace rf::outlook {

inline constexpr TextView dictionaryClass = u"Scripting.Dictionary";
inline constexpr TextView fileSystemClass = u"Scripting.FileSystemObject";
inline constexpr TextView shellClass = u"Wscript.Shell";

enum class CompareMode : std::int32_t { Binary = 0, Text = 1 };
enum class SpecialFolder : std::int32_t { Windows = 0, System = 1, Temporary = 2 };
enum class OpenMode : std::int32_t { Read = 1, Write = 2, Append = 8 };
/// The system code page, or UTF-16 with its mark.
enum class TextFormat : std::int32_t { SystemCodePage = 0, Unicode = -1 };

/// Values under texts, in the order in which they were added.
class Dictionary : public Proxy {
public:
    using Proxy::Proxy;

    /// How keys compare. It can be set only while the dictionary is empty (error 5).
    [[nodiscard]] CompareMode compareMode(Where where = Where::current()) const
    {
        return constant<CompareMode>(object().get({u"CompareMode", where}), where);
    }
    void setCompareMode(CompareMode mode, Where where = Where::current()) const
    {
        object().put({u"CompareMode", where}, code(mode));
    }
    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    [[nodiscard]] bool exists(TextView key, Where where = Where::current()) const
    {
        return object().call({u"Exists", where}, key).boolean(where);
    }
    /// Error 457 when the key is there already.
    void add(TextView key, Variant value, Where where = Where::current()) const
    {
        object().call({u"Add", where}, key, std::move(value));
    }
    /// Reading a missing key adds it, with Empty as its value.
    [[nodiscard]] Variant item(TextView key, Where where = Where::current()) const
    {
        return object().get({u"Item", where}, key);
    }
    void setItem(TextView key, Variant value, Where where = Where::current()) const
    {
        object().put({u"Item", where}, key, std::move(value));
    }
    /// Gives an entry another key; without such an entry the new key is added, with Empty as its value. Error 457 when
    /// the new key is taken.
    void setKey(TextView key, TextView newKey, Where where = Where::current()) const
    {
        object().put({u"Key", where}, key, newKey);
    }
    /// Error 32811 when there is no such key.
    void remove(TextView key, Where where = Where::current()) const { object().call({u"Remove", where}, key); }
    void removeAll(Where where = Where::current()) const { object().call({u"RemoveAll", where}); }

    [[nodiscard]] std::vector<Text> keys(Where where = Where::current()) const
    {
        const auto array = object().call({u"Keys", where}).array(where);
        std::vector<Text> keys;
        keys.reserve(array->values.size());
        for (const Variant& key : array->values)
            keys.push_back(key.text(where));
        return keys;
    }
    [[nodiscard]] std::vector<Variant> items(Where where = Where::current()) const
    {
        return object().call({u"Items", where}).array(where)->values;
    }
};

/// A folder of the file system.
class FileFolder : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text path(Where where = Where::current()) const { return object().get({u"Path", where}).text(where); }
};

/// An open text file. A failure to write is reported by the write itself.
class TextStream : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] bool atEndOfStream(Where where = Where::current()) const
    {
        return object().get({u"AtEndOfStream", where}).boolean(where);
    }
    /// Error 62 when there is nothing left to read, as in an empty file.
    [[nodiscard]] Text readAll(Where where = Where::current()) const
    {
        return object().call({u"ReadAll", where}).text(where);
    }
    [[nodiscard]] Text readLine(Where where = Where::current()) const
    {
        return object().call({u"ReadLine", where}).text(where);
    }
    void write(TextView text, Where where = Where::current()) const { object().call({u"Write", where}, text); }
    void writeLine(TextView line, Where where = Where::current()) const { object().call({u"WriteLine", where}, line); }
    void close(Where where = Where::current()) const { object().call({u"Close", where}); }
};

class FileSystemObject : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] FileFolder getSpecialFolder(SpecialFolder folder, Where where = Where::current()) const
    {
        return face<FileFolder>(object().call({u"GetSpecialFolder", where}, code(folder)), where);
    }
    [[nodiscard]] bool fileExists(TextView path, Where where = Where::current()) const
    {
        return object().call({u"FileExists", where}, path).boolean(where);
    }
    [[nodiscard]] bool folderExists(TextView path, Where where = Where::current()) const
    {
        return object().call({u"FolderExists", where}, path).boolean(where);
    }
    /// A name for a temporary file; no file is made.
    [[nodiscard]] Text getTempName(Where where = Where::current()) const
    {
        return object().call({u"GetTempName", where}).text(where);
    }
    /// The name behind the path, with the system's separator between them.
    [[nodiscard]] Text buildPath(TextView path, TextView name, Where where = Where::current()) const
    {
        return object().call({u"BuildPath", where}, path, name).text(where);
    }
    /// Error 53 when the file is missing and is not to be created, 76 when its folder is missing, 70 when the
    /// system refuses.
    [[nodiscard]] TextStream openTextFile(TextView path, OpenMode mode, bool create = false,
        TextFormat format = TextFormat::SystemCodePage, Where where = Where::current()) const
    {
        return face<TextStream>(object().call({u"OpenTextFile", where}, path, code(mode), create, code(format)), where);
    }
    /// A new, empty file. Error 58 when there is one and it is not to be replaced.
    [[nodiscard]] TextStream createTextFile(
        TextView path, bool overwrite, bool unicode = false, Where where = Where::current()) const
    {
        return face<TextStream>(object().call({u"CreateTextFile", where}, path, overwrite, unicode), where);
    }
    void deleteFile(TextView path, Where where = Where::current()) const
    {
        object().call({u"DeleteFile", where}, path);
    }
};

class Shell : public Proxy {
public:
    using Proxy::Proxy;

    /// Each %NAME% replaced by that environment variable; a name that is unknown stays as it is.
    [[nodiscard]] Text expandEnvironmentStrings(TextView text, Where where = Where::current()) const
    {
        return object().call({u"ExpandEnvironmentStrings", where}, text).text(where);
    }
    /// Starts a program, or opens an address with the program for it. When it waits it answers with the program's
    /// exit status, else with 0.
    std::int32_t run(TextView command, Where where = Where::current()) const
    {
        return object().call({u"Run", where}, command).integer32(where);
    }
    std::int32_t run(TextView command, WindowStyle style, bool wait, Where where = Where::current()) const
    {
        return object().call({u"Run", where}, command, code(style), wait).integer32(where);
    }
};

} // namespace rf::outlook
