#pragma once

#include "basic/text.h"
#include "host/store_error.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <type_traits>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace rf::host {

/// A statement of the store's own. It is compiled once per connection and found again by its address.
struct Sql {
    const char* text;
};

/// How far a commit goes before it returns.
enum class Durability {
    Medium,
    /// What the end of a process does not lose, though a power cut may.
    System,
};

/// One connection to a SQLite file. Every failure leaves it as a StoreError that names the file.
class Database {
public:
    enum class Access {
        Read,
        /// The file alone, without its journal and without locks: for media on which nothing can be made.
        ReadAlone,
        Write,
        Create,
    };

    Database(std::filesystem::path path, Access access, std::chrono::milliseconds busyLimit);

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::chrono::milliseconds busyLimit() const { return busyLimit_; }
    /// How long another process is waited for that has the file locked.
    void setBusyLimit(std::chrono::milliseconds limit);
    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] bool isInTransaction() const;
    /// Runs statements that are not worth keeping.
    void execute(const char* statements);
    /// The number of the row that was inserted last.
    [[nodiscard]] std::int64_t lastRow() const;
    /// The first bytes of the file as the system has them, read past all locks. Fewer when the file is shorter.
    [[nodiscard]] std::span<const std::byte> fileBegin(std::span<std::byte> buffer) const;

    /// A failure with a sentence about this file: `… "/path" …`.
    [[nodiscard]] StoreError error(StoreFault fault, TextView before, TextView behind) const;
    /// Throws what a result code of SQLite means.
    [[noreturn]] void fail(int code) const;
    void check(int code) const;

private:
    friend class Query;
    friend class Transaction;

    struct Close {
        void operator()(sqlite3* handle) const;
    };
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    [[nodiscard]] sqlite3_stmt* compiled(Sql sql);
    [[nodiscard]] bool hasNoRoom(int code) const;
    void setDurability(Durability durability);

    std::filesystem::path path_;
    std::chrono::milliseconds busyLimit_;
    Durability durability_ = Durability::Medium;
    std::unique_ptr<sqlite3, Close> handle_;
    std::unordered_map<const char*, std::unique_ptr<sqlite3_stmt, Finalize>> statements_;
};

/// One run of a statement. Parameters are bound from the first on; texts and bytes stay the caller's and outlive the
/// query. Two runs of one statement do not overlap.
class Query {
public:
    Query(Database& database, Sql sql);
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    Query& bind(std::int64_t number);
    Query& bind(double number);
    Query& bind(TextView text);
    Query& bind(std::span<const std::byte> bytes);
    Query& bindNothing();
    template <class Number>
    requires std::is_enum_v<Number> Query& bind(Number number) { return bind(static_cast<std::int64_t>(number)); }

    /// Whether there is another row.
    [[nodiscard]] bool next();
    /// Runs a statement that answers nothing.
    void run();

    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] std::int32_t integer32(int column) const { return static_cast<std::int32_t>(integer(column)); }
    [[nodiscard]] double number(int column) const;
    [[nodiscard]] Text text(int column) const;
    /// They last until the next row.
    [[nodiscard]] std::span<const std::byte> bytes(int column) const;

private:
    Database& database_;
    sqlite3_stmt* statement_;
    int bound_ = 0;
};

/// A transaction that writes. It waits for other writers where it begins, and is taken back unless it is committed.
class Transaction {
public:
    explicit Transaction(Database& database, Durability durability = Durability::Medium);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

private:
    Database& database_;
};

} // namespace rf::host
