#pragma once

#include <cstdint>

namespace rf::host {

/// What tells a store from other SQLite files ("RFBI"), and the version of its tables.
inline constexpr std::uint32_t schemaApplication = 0x52464249;
inline constexpr std::uint32_t schemaVersion = 1;

/// Every connection's settings. Each commit is on the medium before it returns; the log is carried over into the file
/// every thousand pages, and cut back to a size that a bulk import does not leave behind.
inline constexpr const char* connectionSettings = R"(
PRAGMA synchronous = FULL;
PRAGMA foreign_keys = ON;
PRAGMA temp_store = MEMORY;
PRAGMA cache_size = -32000;
PRAGMA wal_autocheckpoint = 1000;
PRAGMA journal_size_limit = 16777216;
PRAGMA trusted_schema = OFF;
PRAGMA cell_size_check = ON;
)";

/// The tables of a new store. Texts are blobs of UTF-16 units, lists are blobs of the codec.
///
/// item.first and item.last are the whole seconds of the item's stretch, and item.reach the shortest of a few fixed
/// lengths that the stretch fits in. So what overlaps a window lies, for each length, in one short piece of the index:
/// from that length before the window to its end. Neither old items nor long ones make the others slower to find.
///
/// The keys are texts in upper case, cut to a length that keeps an index page full of entries.
inline constexpr const char* schemaTables = R"(
CREATE TABLE folder(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    parent INTEGER REFERENCES folder(id),
    role INTEGER NOT NULL,
    name BLOB NOT NULL,
    item_type INTEGER NOT NULL,
    web_view_url BLOB NOT NULL,
    web_view_on INTEGER NOT NULL,
    fields BLOB NOT NULL);
CREATE INDEX folder_by_parent ON folder(parent);
CREATE TABLE item(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    folder INTEGER NOT NULL REFERENCES folder(id),
    revision INTEGER NOT NULL,
    reach INTEGER NOT NULL,
    first INTEGER NOT NULL,
    last INTEGER NOT NULL,
    start_second INTEGER NOT NULL,
    subject_key BLOB NOT NULL,
    properties BLOB NOT NULL,
    message_class BLOB NOT NULL,
    subject BLOB NOT NULL,
    categories BLOB NOT NULL,
    location BLOB NOT NULL,
    addressees BLOB NOT NULL,
    start REAL,
    end REAL,
    all_day INTEGER NOT NULL,
    busy_status INTEGER NOT NULL,
    meeting_status INTEGER NOT NULL,
    creation_time REAL,
    modification_time REAL,
    size INTEGER NOT NULL,
    time_zone BLOB NOT NULL,
    uid BLOB NOT NULL,
    recurrence BLOB,
    body BLOB NOT NULL);
CREATE INDEX item_by_time ON item(folder, reach, first, last, start_second);
CREATE INDEX item_by_subject ON item(folder, subject_key);
CREATE TABLE property_text(
    folder INTEGER NOT NULL,
    name_key BLOB NOT NULL,
    text_key BLOB NOT NULL,
    item INTEGER NOT NULL,
    PRIMARY KEY(folder, name_key, text_key, item)) WITHOUT ROWID;
CREATE TABLE change(
    sequence INTEGER PRIMARY KEY AUTOINCREMENT,
    kind INTEGER NOT NULL,
    folder INTEGER NOT NULL,
    item INTEGER NOT NULL,
    arrived_together INTEGER NOT NULL,
    writer INTEGER NOT NULL);
CREATE TABLE lease(
    folder INTEGER PRIMARY KEY,
    owner INTEGER NOT NULL,
    process TEXT NOT NULL,
    expires INTEGER NOT NULL);
PRAGMA application_id = 0x52464249;
PRAGMA user_version = 1;
)";

} // namespace rf::host
