#pragma once

#include "support/environment_variable.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string_view>

namespace rf::test {

/// A temporary folder of a test's own, which the programs of this process take for the system's. It goes with this
/// object, whatever is in it.
class TemporaryFiles {
public:
    TemporaryFiles() { std::filesystem::create_directory(folder_); }
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;
    ~TemporaryFiles()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
    void write(std::string_view name, std::string_view bytes) const
    {
        std::ofstream{folder_ / name, std::ios::binary} << bytes;
    }
    void remove(std::string_view name) const { std::filesystem::remove(folder_ / name); }

private:
    [[nodiscard]] static std::filesystem::path freshName()
    {
        return std::filesystem::temp_directory_path() / ("rf-test-" + std::to_string(std::random_device{}()));
    }

    std::filesystem::path folder_ = freshName();
#ifdef _WIN32
    EnvironmentVariable variable_{"TMP", folder_.string()};
#else
    EnvironmentVariable variable_{"TMPDIR", folder_.string()};
#endif
};

} // namespace rf::test
