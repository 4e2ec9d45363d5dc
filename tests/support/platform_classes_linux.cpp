#include "support/platform_classes.h"

#include "linux/scripting.h"

namespace rf::test {

namespace {

using automation::Object;
using automation::Where;

class ScriptingClasses final : public automation::ClassRegistry {
public:
    [[nodiscard]] Object running(TextView className, Where where) override { missing(className, where); }
    [[nodiscard]] Object create(TextView className, Where where) override
    {
        if (auto object = native::makeScriptingObject(className))
            return object;
        missing(className, where);
    }
    [[nodiscard]] Object bind(TextView displayName, Where where) override { missing(displayName, where); }

private:
    [[noreturn]] static void missing(TextView name, Where where)
    {
        throw automation::Error{error_number::cannotCreateObject,
            {Text{errorDescription(error_number::cannotCreateObject)}, Text{name}, {}}, where};
    }
};

} // namespace

automation::ClassRegistry& platformClasses()
{
    static ScriptingClasses classes;
    return classes;
}

} // namespace rf::test
