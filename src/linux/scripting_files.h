#pragma once

#include "automation/local_object.h"

namespace rf::native {

/// "Scripting.FileSystemObject" on paths of this system. Text files in the system code page are UTF-8.
class ScriptingFileSystem final : public automation::LocalObject<ScriptingFileSystem> {
public:
    static constexpr TextView className = u"Scripting.FileSystemObject";
    static std::span<const automation::LocalMember<ScriptingFileSystem>> members();
};

/// A folder as the file system object hands it out.
class ScriptingFolder final : public automation::LocalObject<ScriptingFolder> {
public:
    static constexpr TextView className = u"Folder";
    static std::span<const automation::LocalMember<ScriptingFolder>> members();

    explicit ScriptingFolder(Text path)
        : path_(std::move(path))
    {
    }

private:
    Text path_;
};

} // namespace rf::native
