#include "host/sqlite_opening.h"

#include "host/sqlite_schema.h"
#include "host/store.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <system_error>

namespace rf::host {
namespace {

namespace fs = std::filesystem;
using Access = Database::Access;
using std::chrono::milliseconds;

/// Where a SQLite file says what it is; its numbers begin with their highest byte.
constexpr std::size_t headerSize = 100;
constexpr std::string_view magic{"SQLite format 3\0", 16};
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t versionAt = 60;
constexpr std::size_t applicationAt = 68;

constexpr Sql readVersion{"PRAGMA user_version"};
constexpr Sql readApplication{"PRAGMA application_id"};
constexpr Sql switchToWriteAheadLog{"PRAGMA journal_mode = WAL"};

using Header = std::array<std::byte, headerSize>;

fs::path beside(const fs::path& path, std::string_view tail)
{
    fs::path other = path;
    other += tail;
    return other;
}

std::uintmax_t sizeOrNothing(const fs::path& path)
{
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(path, failure);
    return failure ? 0 : size;
}

std::uint32_t numberAt(const Header& header, std::size_t offset, std::size_t bytes)
{
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < bytes; ++index)
        number = number * 256 + std::to_integer<std::uint32_t>(header.at(offset + index));
    return number;
}

bool beginsLikeSqlite(const Header& header)
{
    return std::equal(magic.begin(), magic.end(), header.begin(),
        [](char expected, std::byte found) { return static_cast<std::byte>(expected) == found; });
}

[[noreturn]] void refuse(const fs::path& path, TextView reason, StoreFault fault = StoreFault::Damaged)
{
    throw StoreError{fault, u"\"" + path.u16string() + u"\" " + Text{reason}};
}

[[noreturn]] void refuseNewer(const fs::path& path)
{
    refuse(path, u"was made by a newer version of this program; it was left as it is.", StoreFault::NewerVersion);
}

/// Refuses what is no store of this version, judging by the first bytes of the file alone.
void checkHeader(const fs::path& path, milliseconds busyLimit)
{
    // While a log stands beside the file, its length may be on the way from one state to the next.
    const bool isSettled = sizeOrNothing(beside(path, "-wal")) == 0;
    Header header{};
    const auto found = Database{path, Access::Read, busyLimit}.fileBegin(header);
    if (found.size() < headerSize || !beginsLikeSqlite(header)
        || numberAt(header, applicationAt, 4) != schemaApplication || numberAt(header, versionAt, 4) == 0)
        refuse(path, u"is no store; it was left as it is.");
    if (numberAt(header, versionAt, 4) > schemaVersion)
        refuseNewer(path);
    // A page of 65536 bytes is written as 1.
    const std::uintmax_t pageSize = numberAt(header, pageSizeAt, 2) == 1 ? 65536 : numberAt(header, pageSizeAt, 2);
    if (isSettled && sizeOrNothing(path) < pageSize * numberAt(header, pageCountAt, 4))
        refuse(path, u"is damaged: its end is missing. It was left as it is.");
}

bool canWrite(const fs::path& path) { return access(path.c_str(), W_OK) == 0; }

fs::path folderOf(const fs::path& path)
{
    const fs::path folder = path.parent_path();
    return folder.empty() ? fs::path{"."} : folder;
}

std::int64_t answerOf(Database& database, Sql question)
{
    Query query{database, question};
    return query.next() ? query.integer(0) : 0;
}

/// The header may be older than the journal, which only a connection reads.
void checkVersion(Database& database)
{
    if (answerOf(database, readVersion) > std::int64_t{schemaVersion})
        refuseNewer(database.path());
    if (answerOf(database, readApplication) != std::int64_t{schemaApplication})
        refuse(database.path(), u"is no store; it was left as it is.");
}

std::unique_ptr<Database> opened(const fs::path& path, Access access, milliseconds busyLimit)
{
    auto database = std::make_unique<Database>(path, access, busyLimit);
    database->execute(connectionSettings);
    checkVersion(*database);
    return database;
}

/// A reader that may not write beside the file takes part in the journal as long as writers keep one there. Else it
/// takes the file alone, and leaves nothing behind that a later writer could not use.
std::unique_ptr<Database> openedForReading(const fs::path& path, milliseconds busyLimit)
{
    const bool isAlone = !fs::exists(beside(path, "-shm"));
    const bool isComplete = sizeOrNothing(beside(path, "-wal")) == 0;
    if (isAlone && isComplete)
        return opened(path, Access::ReadAlone, busyLimit);
    try {
        return opened(path, Access::Read, busyLimit);
    } catch (const StoreError& error) {
        const bool isBarred = error.fault() == StoreFault::ReadOnly || error.fault() == StoreFault::Failed;
        if (!isBarred || !isComplete)
            throw;
    }
    return opened(path, Access::ReadAlone, busyLimit);
}

void keepWriteAheadLog(Database& database)
{
    Query query{database, switchToWriteAheadLog};
    const bool isAnswered = query.next();
    if (!isAnswered || query.bytes(0).front() != std::byte{'w'})
        throw database.error(StoreFault::Failed, u"The store", u"lies where no write-ahead log can be kept.");
}

/// A file that goes with this object, together with what SQLite makes beside it.
class TemporaryFile {
public:
    explicit TemporaryFile(fs::path path)
        : path_(std::move(path))
    {
    }
    ~TemporaryFile()
    {
        for (const char* tail : {"", "-journal", "-wal", "-shm"})
            unlink(beside(path_, tail).c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

/// The name of a new file is on the medium only when its folder is.
void syncFolder(const fs::path& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> directory{opendir(folder.c_str()), closedir};
    if (directory)
        fsync(dirfd(directory.get()));
}

/// Makes a store under another name and gives it its own when it is complete: nobody finds half of one, whenever the
/// process ends. Of several makers the first one's stays.
void makeStoreFile(const fs::path& path, milliseconds busyLimit)
{
    if (access(folderOf(path).c_str(), F_OK) == 0 && !canWrite(folderOf(path)))
        refuse(path, u"cannot be made: its folder cannot be written.", StoreFault::ReadOnly);
    const TemporaryFile made{beside(path, "-new-" + std::to_string(randomWriter()))};
    {
        Database database{made.path(), Access::Create, busyLimit};
        database.execute(connectionSettings);
        Transaction transaction{database};
        database.execute(schemaTables);
        transaction.commit();
        keepWriteAheadLog(database);
    }
    if (link(made.path().c_str(), path.c_str()) != 0 && errno != EEXIST) {
        const std::string reason = std::generic_category().message(errno);
        refuse(path, u"cannot be made: " + fromUtf8(reason) + u".", StoreFault::Failed);
    }
    syncFolder(folderOf(path));
}

} // namespace

std::unique_ptr<Database> openStoreFile(const fs::path& path, Opening opening, milliseconds busyLimit)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    const bool isThere = fs::exists(status);
    if (isThere && !fs::is_regular_file(status))
        refuse(path, u"is no file but a folder or a device, and so no store.");
    if (!isThere && opening == Opening::Existing)
        refuse(path, u"is not there.", StoreFault::Failed);
    if (!isThere)
        makeStoreFile(path, busyLimit);
    checkHeader(path, busyLimit);
    if (!canWrite(path) || !canWrite(folderOf(path)))
        return openedForReading(path, busyLimit);
    auto database = opened(path, Access::Write, busyLimit);
    keepWriteAheadLog(*database);
    return database;
}

} // namespace rf::host
