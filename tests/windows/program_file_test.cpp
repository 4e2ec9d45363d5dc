#include "windows/win32.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace rf::native {
namespace {

/// The delivered program, opened as a file of resources; that way a 64-bit test can look into the 32-bit one.
class ProgramFile : public ::testing::Test {
protected:
    ProgramFile()
    {
        const char* other = std::getenv("RF_PROGRAM_FILE");
        module_ = LoadLibraryExA(other != nullptr ? other : RF_PROGRAM, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    }
    ~ProgramFile() override { FreeLibrary(module_); }
    ProgramFile(const ProgramFile&) = delete;
    ProgramFile& operator=(const ProgramFile&) = delete;

    [[nodiscard]] std::string resource(LPCWSTR name, LPCWSTR type) const
    {
        HRSRC found = FindResourceW(module_, name, type);
        if (found == nullptr)
            return {};
        const void* bytes = LockResource(LoadResource(module_, found));
        return {static_cast<const char*>(bytes), SizeofResource(module_, found)};
    }

private:
    HMODULE module_;
};

TEST_F(ProgramFile, CarriesThePhraseTable)
{
    const std::string table = resource(L"LANGUAGE", L"CUSTOM");
    EXPECT_GT(table.size(), 10000U);
    EXPECT_EQ(table.substr(0, 2), "\xFF\xFE");
}

TEST_F(ProgramFile, CarriesAManifestWithTheCommonControls)
{
    const std::string manifest = resource(MAKEINTRESOURCEW(1), RT_MANIFEST);
    EXPECT_NE(manifest.find("Microsoft.Windows.Common-Controls"), std::string::npos);
    EXPECT_NE(manifest.find("supportedOS"), std::string::npos);
}

TEST_F(ProgramFile, CarriesAnIcon) { EXPECT_FALSE(resource(MAKEINTRESOURCEW(1), RT_GROUP_ICON).empty()); }

TEST_F(ProgramFile, CarriesItsVersion)
{
    const std::string information = resource(MAKEINTRESOURCEW(1), RT_VERSION);
    std::string narrow;
    for (std::size_t i = 0; i < information.size(); i += 2)
        narrow += information[i];
    EXPECT_NE(narrow.find("RFBookingInfo.exe"), std::string::npos);
    EXPECT_NE(narrow.find(RF_VERSION), std::string::npos);
}

} // namespace
} // namespace rf::native
