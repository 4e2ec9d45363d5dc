#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace rf::test {

/// A variable of the environment that is as it was when this object goes.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::string& value)
        : name_(name)
    {
        if (const char* before = std::getenv(name))
            before_ = before;
        set(value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { before_ ? set(*before_) : unset(); }

private:
#ifdef _WIN32
    void set(const std::string& value) const { _putenv_s(name_, value.c_str()); }
    void unset() const { _putenv_s(name_, ""); }
#else
    void set(const std::string& value) const { setenv(name_, value.c_str(), 1); }
    void unset() const { unsetenv(name_); }
#endif

    const char* name_;
    std::optional<std::string> before_;
};

} // namespace rf::test
