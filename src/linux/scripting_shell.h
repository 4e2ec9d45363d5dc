#pragma once

#include "automation/local_object.h"

namespace rf::native {

/// "Wscript.Shell". Programs are started directly: no command line interpreter reads the command, so nothing in it has
/// a meaning but blanks, which separate arguments, and double quotes, which keep one together.
class ScriptingShell final : public automation::LocalObject<ScriptingShell> {
public:
    static constexpr TextView className = u"Wscript.Shell";
    static std::span<const automation::LocalMember<ScriptingShell>> members();
};

} // namespace rf::native
