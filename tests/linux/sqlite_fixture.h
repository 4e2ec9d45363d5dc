#pragma once

#include "host/sqlite_store.h"
#include "host/store/store_fixture.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace rf::host::test {

/// A folder that goes with this object, whatever is in it.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "rf-store-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw std::system_error{errno, std::generic_category(), name};
        path_ = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path file(const char* name = "calendar.rfstore") const { return path_ / name; }

private:
    std::filesystem::path path_;
};

/// A process that does one thing. It succeeds when that answers true.
class Child {
public:
    template <class Work>
    explicit Child(const Work& work)
        : id_(fork())
    {
        if (id_ == 0)
            _exit(succeeds(work) ? 0 : 1);
    }
    ~Child()
    {
        kill();
        (void)wait();
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void kill() const
    {
        if (id_ > 0)
            ::kill(id_, SIGKILL);
    }
    /// Waits for its end; whether it succeeded.
    [[nodiscard]] bool wait()
    {
        if (id_ <= 0)
            return false;
        int status = 0;
        waitpid(id_, &status, 0);
        id_ = 0;
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

private:
    template <class Work>
    static bool succeeds(const Work& work)
    {
        try {
            return work();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            return false;
        }
    }

    pid_t id_;
};

/// A pipe that carries numbers from a child.
class NumberPipe {
public:
    NumberPipe() { EXPECT_EQ(pipe(ends_), 0); }
    ~NumberPipe()
    {
        closeEnd(0);
        closeEnd(1);
    }
    NumberPipe(const NumberPipe&) = delete;
    NumberPipe& operator=(const NumberPipe&) = delete;

    bool put(std::int64_t number) const { return ::write(ends_[1], &number, sizeof number) == sizeof number; }
    /// Nothing when all writers have ended.
    [[nodiscard]] std::optional<std::int64_t> take()
    {
        closeEnd(1);
        std::int64_t number = 0;
        return ::read(ends_[0], &number, sizeof number) == sizeof number ? std::optional{number} : std::nullopt;
    }

private:
    void closeEnd(std::size_t end)
    {
        if (ends_[end] >= 0)
            ::close(ends_[end]);
        ends_[end] = -1;
    }

    int ends_[2] = {-1, -1};
};

inline std::string bytesOf(const std::filesystem::path& path)
{
    if (!std::filesystem::is_regular_file(path))
        return {};
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

inline void writeBytes(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream file{path, std::ios::binary};
    file << bytes;
}

/// What SQLite itself says of a file: "ok".
inline std::string integrityOf(const std::filesystem::path& path)
{
    Database database{path, Database::Access::Write, std::chrono::seconds{10}};
    Query query{database, Sql{"SELECT group_concat(integrity_check) FROM pragma_integrity_check"}};
    if (!query.next())
        return {};
    const auto bytes = query.bytes(0);
    std::string answer;
    for (const std::byte byte : bytes)
        answer += static_cast<char>(byte);
    return answer;
}

/// A store in a file of its own, and other store objects on it.
class SqliteStoreTest : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path path() const { return folder_.file(); }
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }
    [[nodiscard]] SqliteStore open() const { return SqliteStore{path(), Opening::Existing}; }
    /// Makes the store with one calendar in it.
    [[nodiscard]] FolderId makeRoom() const { return SqliteStore{path()}.addFolder(calendar(u"Room")); }

private:
    TemporaryFolder folder_;
};

} // namespace rf::host::test
