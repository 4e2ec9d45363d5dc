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

    TestClasses();
    TestClasses(const TestClasses&) = delete;
    TestClasses& operator=(const TestClasses&) = delete;
    ~TestClasses() override;

    std::map<Text, automation::Object> runningObjects;
    std::map<Text, Factory> factories;
    /// By their display names.
    std::map<Text, automation::Object> boundObjects;
    std::vector<Text> asked;

    [[nodiscard]] automation::Object running(TextView className, automation::Where where) override;
    [[nodiscard]] automation::Object create(TextView className, automation::Where where) override;
    [[nodiscard]] automation::Object bind(TextView displayName, automation::Where where) override;
};

} // namespace rf::test
