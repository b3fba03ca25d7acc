#include "platform/sqlite.h"

#include <sqlite3.h>

#include "text/code_page.h"
#include "text/literal.h"

namespace swiftroll::platform {
namespace {

/// How long to wait for another program that uses the file, and how long between two tries: short pauses, so
/// that one that saves again and again does not always come first.
constexpr int kPatience = 1000, kPause = 5;  // milliseconds

int WaitForOthers(void*, int tries) {
    if (tries * kPause >= kPatience) return 0;
    sqlite3_sleep(kPause);
    return 1;
}

void Check(int code) {
    if (code != SQLITE_OK) throw SqliteError(code);
}

}  // namespace

TextView SqliteError::Reason() const {
    switch (code_ & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "le fichier est utilisé par un autre programme"_t;
        case SQLITE_READONLY:
            return "le fichier ou son dossier est en lecture seule"_t;
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return "accès refusé"_t;
        case SQLITE_FULL:
            return "le disque est plein"_t;
        case SQLITE_CANTOPEN:
            return "le fichier ne peut être ouvert"_t;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return "le fichier est endommagé"_t;
        default:
            return "lecture ou écriture impossible"_t;
    }
}

bool SqliteError::IsDamage() const {
    const int code = code_ & 0xFF;
    // A well-formed file with other tables makes the statements themselves wrong.
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_ERROR;
}

SqliteFile::SqliteFile(const std::string& name) {
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(name.c_str(), &database_, kFlags, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(database_);
        throw SqliteError(code);
    }
    sqlite3_busy_handler(database_, WaitForOthers, nullptr);
    // The file may come from anywhere: nothing that it defines is run.
    sqlite3_db_config(database_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

SqliteFile::~SqliteFile() { sqlite3_close(database_); }

void SqliteFile::Execute(const char* sql) const {
    Check(sqlite3_exec(database_, sql, nullptr, nullptr, nullptr));
}

void SqliteFile::CheckWhole() const {
    const SqliteStatement check(*this, "PRAGMA integrity_check(1)");
    if (!check.Next() || check.Column(0) != "ok") throw SqliteError(SQLITE_CORRUPT);
}

bool SqliteFile::IsReadOnly() const { return sqlite3_db_readonly(database_, "main") == 1; }

void SqliteFile::RollBack() const {
    // SQLite has ended it by itself after some failures, as that of a full disk.
    if (sqlite3_get_autocommit(database_) == 0) {
        sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

SqliteStatement::SqliteStatement(const SqliteFile& file, const char* sql,
                                 std::initializer_list<TextView> parameters) {
    Check(sqlite3_prepare_v2(file.database_, sql, -1, &statement_, nullptr));
    int i = 0;
    for (const TextView parameter : parameters) {
        const std::string utf8 = ToUtf8(parameter);
        const int code =
            sqlite3_bind_text64(statement_, ++i, utf8.data(), utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        if (code == SQLITE_OK) continue;
        sqlite3_finalize(statement_);
        throw SqliteError(code);
    }
}

SqliteStatement::~SqliteStatement() { sqlite3_finalize(statement_); }

bool SqliteStatement::Next() const {
    const int code = sqlite3_step(statement_);
    if (code != SQLITE_ROW && code != SQLITE_DONE) throw SqliteError(code);
    return code == SQLITE_ROW;
}

std::optional<Text> SqliteStatement::Column(int index) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, index));
    if (bytes == nullptr) return std::nullopt;
    return FromUtf8({bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, index))});
}

}  // namespace swiftroll::platform
