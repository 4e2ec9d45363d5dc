#include "host/sqlite_database.h"

#include <sqlite3.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace rf::host {
namespace {

static_assert(std::endian::native == std::endian::little, "texts are kept as the units lie in memory");

constexpr Sql begin{"BEGIN IMMEDIATE"};
constexpr Sql commitAll{"COMMIT"};
constexpr int primaryCode = 0xFF;

/// A path as a URI that asks for the file alone.
std::string aloneUri(const std::filesystem::path& path)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char byte : std::filesystem::absolute(path).string()) {
        if (std::strchr("%?#", byte) == nullptr) {
            uri += byte;
        } else {
            uri += '%';
            uri += digits[static_cast<unsigned char>(byte) / 16];
            uri += digits[static_cast<unsigned char>(byte) % 16];
        }
    }
    return uri + "?immutable=1";
}

int flagsOf(Database::Access access)
{
    switch (access) {
    case Database::Access::Read:
        return SQLITE_OPEN_READONLY;
    case Database::Access::ReadAlone:
        return SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    case Database::Access::Write:
        return SQLITE_OPEN_READWRITE;
    case Database::Access::Create:
        break;
    }
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
}

bool meansFull(int systemError) { return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG; }

bool meansReadOnly(int systemError) { return systemError == EACCES || systemError == EPERM || systemError == EROFS; }

} // namespace

void Database::Close::operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }

void Database::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Database::Database(std::filesystem::path path, Access access, std::chrono::milliseconds busyLimit)
    : path_(std::move(path))
    , busyLimit_(busyLimit)
{
    const std::string name = access == Access::ReadAlone ? aloneUri(path_) : path_.string();
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &handle, flagsOf(access) | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    check(code);
    sqlite3_extended_result_codes(handle, 1);
    setBusyLimit(busyLimit);
}

void Database::setBusyLimit(std::chrono::milliseconds limit)
{
    busyLimit_ = limit;
    sqlite3_busy_timeout(handle_.get(), static_cast<int>(limit.count()));
}

bool Database::isReadOnly() const { return sqlite3_db_readonly(handle_.get(), "main") == 1; }

bool Database::isInTransaction() const { return sqlite3_get_autocommit(handle_.get()) == 0; }

void Database::execute(const char* statements)
{
    check(sqlite3_exec(handle_.get(), statements, nullptr, nullptr, nullptr));
}

std::int64_t Database::lastRow() const { return sqlite3_last_insert_rowid(handle_.get()); }

std::span<const std::byte> Database::fileBegin(std::span<std::byte> buffer) const
{
    // Through SQLite's own handle: to close another one would let go of the locks that this process has on the file.
    sqlite3_file* file = nullptr;
    check(sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file));
    sqlite3_int64 size = 0;
    check(file->pMethods->xFileSize(file, &size));
    buffer = buffer.first(std::min(buffer.size(), static_cast<std::size_t>(size)));
    if (!buffer.empty())
        check(file->pMethods->xRead(file, buffer.data(), static_cast<int>(buffer.size()), 0));
    return buffer;
}

StoreError Database::error(StoreFault fault, TextView before, TextView behind) const
{
    return StoreError{fault, Text{before} + u" \"" + path_.u16string() + u"\" " + Text{behind}};
}

bool Database::hasNoRoom(int code) const
{
    const int primary = code & primaryCode;
    if (primary != SQLITE_IOERR)
        return primary == SQLITE_FULL;
    if (meansFull(sqlite3_system_errno(handle_.get())))
        return true;
    // What SQLite does after a failed write may have set another error; the files themselves remember theirs.
    const auto lastErrorIsFull = [this](int whichFile) {
        sqlite3_file* file = nullptr;
        sqlite3_file_control(handle_.get(), "main", whichFile, &file);
        int systemError = 0;
        if (file != nullptr && file->pMethods != nullptr)
            file->pMethods->xFileControl(file, SQLITE_FCNTL_LAST_ERRNO, &systemError);
        return meansFull(systemError);
    };
    return lastErrorIsFull(SQLITE_FCNTL_JOURNAL_POINTER) || lastErrorIsFull(SQLITE_FCNTL_FILE_POINTER);
}

void Database::fail(int code) const
{
    sqlite3* const handle = handle_.get();
    const int systemError = handle == nullptr ? 0 : sqlite3_system_errno(handle);
    const int primary = code & primaryCode;
    if (hasNoRoom(code))
        throw error(StoreFault::Full, u"There is no room left for the store", u"; nothing was written.");
    if (primary == SQLITE_READONLY || primary == SQLITE_PERM
        || (primary == SQLITE_CANTOPEN && meansReadOnly(systemError)))
        throw error(StoreFault::ReadOnly, u"The store", u"can be read but not written.");
    if (primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB)
        throw error(StoreFault::Damaged, u"The file", u"is damaged or no store at all; it was left as it is.");
    if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED)
        throw error(StoreFault::Busy, u"Another program keeps the store", u"locked; try again later.");
    if (code == SQLITE_CONSTRAINT_FOREIGNKEY)
        throw error(StoreFault::Missing, u"The folder is no longer in the store", u".");
    std::string reason = handle == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(handle);
    if (systemError != 0)
        reason += " (" + std::generic_category().message(systemError) + ")";
    throw error(StoreFault::Failed, u"The store", u"cannot be used: " + fromUtf8(reason) + u".");
}

void Database::check(int code) const
{
    if (code != SQLITE_OK)
        fail(code);
}

sqlite3_stmt* Database::compiled(Sql sql)
{
    auto& kept = statements_[sql.text];
    if (!kept) {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v3(handle_.get(), sql.text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
        kept.reset(statement);
    }
    return kept.get();
}

void Database::setDurability(Durability durability)
{
    if (durability == durability_)
        return;
    execute(durability == Durability::Medium ? "PRAGMA synchronous = FULL" : "PRAGMA synchronous = NORMAL");
    durability_ = durability;
}

Query::Query(Database& database, Sql sql)
    : database_(database)
    , statement_(database.compiled(sql))
{
}

Query::~Query()
{
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

Query& Query::bind(std::int64_t number)
{
    database_.check(sqlite3_bind_int64(statement_, ++bound_, number));
    return *this;
}

Query& Query::bind(double number)
{
    database_.check(sqlite3_bind_double(statement_, ++bound_, number));
    return *this;
}

Query& Query::bind(TextView text) { return bind(std::as_bytes(std::span{text})); }

Query& Query::bind(std::span<const std::byte> bytes)
{
    // Without an address SQLite takes an empty value for none.
    const void* const address = bytes.empty() ? static_cast<const void*>("") : bytes.data();
    database_.check(sqlite3_bind_blob64(statement_, ++bound_, address, bytes.size(), SQLITE_STATIC));
    return *this;
}

Query& Query::bindNothing()
{
    database_.check(sqlite3_bind_null(statement_, ++bound_));
    return *this;
}

bool Query::next()
{
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        database_.fail(code);
    return code == SQLITE_ROW;
}

void Query::run()
{
    while (next()) { }
}

std::int64_t Query::integer(int column) const { return sqlite3_column_int64(statement_, column); }

double Query::number(int column) const { return sqlite3_column_double(statement_, column); }

Text Query::text(int column) const
{
    const std::span<const std::byte> units = bytes(column);
    Text text(units.size() / sizeof(char16_t), u'\0');
    if (!text.empty())
        std::memcpy(text.data(), units.data(), text.size() * sizeof(char16_t));
    return text;
}

std::span<const std::byte> Query::bytes(int column) const
{
    const void* const address = sqlite3_column_blob(statement_, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return address == nullptr ? std::span<const std::byte>{} : std::span{static_cast<const std::byte*>(address), size};
}

Transaction::Transaction(Database& database, Durability durability)
    : database_(database)
{
    database_.setDurability(durability);
    Query{database_, begin}.run();
}

Transaction::~Transaction()
{
    // A failure may have taken the transaction back already, and one here means that it is gone with the connection.
    if (database_.isInTransaction())
        sqlite3_exec(database_.handle_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() { Query{database_, commitAll}.run(); }

} // namespace rf::host
