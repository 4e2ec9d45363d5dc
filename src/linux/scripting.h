#pragma once

#include "automation/object.h"

namespace rf::native {

/// The scripting classes that Windows has as components, for a system that has none: the same members with the same
/// meaning. `makeScriptingObject` answers nothing for a class that is not one of
/// "Scripting.Dictionary", "Scripting.FileSystemObject" and "Wscript.Shell".
[[nodiscard]] automation::Object makeScriptingObject(TextView className);

} // namespace rf::native
