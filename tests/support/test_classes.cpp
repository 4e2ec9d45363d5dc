#include "support/test_classes.h"

namespace rf::test {

namespace {

[[noreturn]] automation::Object missing(TextView className, automation::Where where)
{
    throw automation::Error{error_number::cannotCreateObject,
        {Text{errorDescription(error_number::cannotCreateObject)}, Text{className}, {}}, where};
}

} // namespace

TestClasses::TestClasses() = default;
TestClasses::~TestClasses() = default;

automation::Object TestClasses::running(TextView className, automation::Where where)
{
    asked.push_back(u"running " + Text{className});
    const auto found = runningObjects.find(Text{className});
    return found == runningObjects.end() ? missing(className, where) : found->second;
}

automation::Object TestClasses::create(TextView className, automation::Where where)
{
    asked.push_back(u"create " + Text{className});
    const auto found = factories.find(Text{className});
    return found == factories.end() ? missing(className, where) : found->second();
}

automation::Object TestClasses::bind(TextView displayName, automation::Where where)
{
    asked.push_back(u"bind " + Text{displayName});
    const auto found = boundObjects.find(Text{displayName});
    return found == boundObjects.end() ? missing(displayName, where) : found->second;
}

} // namespace rf::test
