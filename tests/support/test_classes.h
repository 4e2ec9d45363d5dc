#pragma once

#include "automation/class_registry.h"

#include <functional>
#include <map>
#include <vector>

namespace rf::test {

/// Classes as a test supplies them; any other is not to be had. What the program asks for is kept in order.
class TestClasses final : public automation::ClassRegistry {
public:
    using Factory = std::function<automation::Object()>;

    std::map<Text, automation::Object> runningObjects;
    std::map<Text, Factory> factories;
    /// By their display names.
    std::map<Text, automation::Object> boundObjects;
    std::vector<Text> asked;

    [[nodiscard]] automation::Object running(TextView className, automation::Where where) override
    {
        asked.push_back(u"running " + Text{className});
        const auto found = runningObjects.find(Text{className});
        return found == runningObjects.end() ? missing(className, where) : found->second;
    }
    [[nodiscard]] automation::Object create(TextView className, automation::Where where) override
    {
        asked.push_back(u"create " + Text{className});
        const auto found = factories.find(Text{className});
        return found == factories.end() ? missing(className, where) : found->second();
    }
    [[nodiscard]] automation::Object bind(TextView displayName, automation::Where where) override
    {
        asked.push_back(u"bind " + Text{displayName});
        const auto found = boundObjects.find(Text{displayName});
        return found == boundObjects.end() ? missing(displayName, where) : found->second;
    }

private:
    [[noreturn]] static automation::Object missing(TextView className, automation::Where where)
    {
        throw automation::Error{error_number::cannotCreateObject,
            {Text{errorDescription(error_number::cannotCreateObject)}, Text{className}, {}}, where};
    }
};

} // namespace rf::test
