#include "linux/scripting.h"

#include "linux/scripting_dictionary.h"
#include "linux/scripting_files.h"
#include "linux/scripting_shell.h"

namespace rf::native {

automation::Object makeScriptingObject(TextView className)
{
    if (equalIgnoringCase(className, ScriptingDictionary::className))
        return automation::Object{std::make_shared<ScriptingDictionary>()};
    if (equalIgnoringCase(className, ScriptingFileSystem::className))
        return automation::Object{std::make_shared<ScriptingFileSystem>()};
    if (equalIgnoringCase(className, ScriptingShell::className))
        return automation::Object{std::make_shared<ScriptingShell>()};
    return {};
}

} // namespace rf::native
