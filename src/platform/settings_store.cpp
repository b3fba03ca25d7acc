#include "platform/settings_store.h"

#include <sqlite3.h>

#include <filesystem>

#include "platform/sqlite.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCreate =
    "CREATE TABLE IF NOT EXISTS settings (section TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL, "
    "PRIMARY KEY (section, key)) WITHOUT ROWID";
constexpr const char* kSave =
    "INSERT INTO settings (section, key, value) VALUES (?1, ?2, ?3) "
    "ON CONFLICT (section, key) DO UPDATE SET value = ?3";
constexpr const char* kAdd =
    "INSERT INTO settings (section, key, value) VALUES (?1, ?2, ?3) ON CONFLICT (section, key) DO NOTHING";
constexpr const char* kGet = "SELECT value FROM settings WHERE section = ?1 AND key = ?2";
constexpr const char* kGetAll = "SELECT key, value FROM settings WHERE section = ?1";
constexpr const char* kEverything = "SELECT section, key, value FROM settings ORDER BY section, key";
constexpr const char* kDelete = "DELETE FROM settings WHERE section = ?1 AND key = ?2";
constexpr const char* kDeleteSection =
    "DELETE FROM settings WHERE section = ?1 OR (section >= ?2 AND section < ?3)";

[[noreturn]] void Fail(TextView file, TextView reason) {
    throw Failure(FailureKind::FileAccess, Concat({file, " : ", reason}));
}

fs::path PathOf(TextView name) { return fs::path(FileNameFromText(name)); }

/// Gives a file, and the journals that belong to it, a name that no other file has. @throws
/// fs::filesystem_error
Text SetAside(TextView file) {
    Text aside;
    for (int i = 1; aside.empty() || fs::exists(fs::symlink_status(PathOf(aside))); ++i) {
        aside = Concat({file, ".endommage-", Decimal(i)});
    }
    for (const TextView part : {"-journal", "-wal", "-shm", ""}) {
        const fs::path from = PathOf(Concat({file, part}));
        if (fs::exists(from)) fs::rename(from, PathOf(Concat({aside, part})));
    }
    return aside;
}

}  // namespace

SettingsFile::SettingsFile(TextView folder)
    : file_(FileNameToText((PathOf(folder) / "settings.sqlite").string())) {
    try {
        if (folder.empty()) throw SqliteError(SQLITE_CANTOPEN);
        std::error_code ignored;  // the file that cannot be made then tells it
        fs::create_directories(PathOf(folder), ignored);
        Open();
        if (!database_->IsReadOnly()) return;
        Tell(Concat({"Les paramètres ne seront pas sauvegardés : "_t, file_, " est en lecture seule."_t}));
    } catch (const SqliteError& error) {
        GiveUp(error.Reason());
    } catch (const fs::filesystem_error&) {
        GiveUp("le fichier endommagé ne peut être mis de côté"_t);
    }
}

SettingsFile::~SettingsFile() = default;

void SettingsFile::GiveUp(TextView reason) {
    database_.reset();
    trouble_ = reason;
    Tell(Concat({"Paramètres par défaut, qui ne seront pas sauvegardés : "_t, file_, " n'a pu être lu ("_t,
                 trouble_, ")."}));
}

void SettingsFile::Tell(TextView sentence) {
    if (!notice_.empty()) notice_ += ' ';
    notice_ += sentence;
}

void SettingsFile::Open() {
    try {
        OpenFile();
    } catch (const SqliteError& error) {
        if (!error.IsDamage()) throw;
        database_.reset();
        Tell(Concat({"Le fichier des paramètres était endommagé ; il est gardé sous "_t, SetAside(file_),
                     ", et les paramètres sont ceux par défaut."_t}));
        OpenFile();
    }
}

void SettingsFile::OpenFile() {
    database_ = std::make_unique<SqliteFile>(FileNameFromText(file_));
    database_->CheckWhole();
    database_->Execute(kCreate);
    // A file of another program has no table that these fit.
    for (const char* sql : {kSave, kAdd, kGet, kGetAll, kDelete, kDeleteSection})
        SqliteStatement(*database_, sql);
}

void SettingsFile::Write(const char* sql, std::initializer_list<TextView> parameters) {
    if (!database_ || hasFailed_) Fail(file_, trouble_);
    try {
        SqliteStatement(*database_, sql, parameters).Next();
    } catch (const SqliteError& error) {
        trouble_ = error.Reason();
        hasFailed_ = isTogether_;
        Fail(file_, trouble_);
    }
}

void SettingsFile::SaveSetting(TextView section, TextView key, TextView value) {
    Write(kSave, {section, key, value});
}

void SettingsFile::AddSetting(TextView section, TextView key, TextView value) {
    Write(kAdd, {section, key, value});
}

void SettingsFile::DeleteSetting(TextView section, TextView key) { Write(kDelete, {section, key}); }

void SettingsFile::DeleteSetting(TextView section) {
    // Sections below begin with the name and "\"; the texts that do so stand before the name and "]".
    Write(kDeleteSection, {section, Concat({section, "\\"}), Concat({section, "]"})});
}

Text SettingsFile::GetSetting(TextView section, TextView key, TextView fallback) {
    if (!database_) return Text(fallback);
    try {
        const SqliteStatement get(*database_, kGet, {section, key});
        return get.Next() ? get.Column(0).value_or(Text(fallback)) : Text(fallback);
    } catch (const SqliteError& error) {
        Fail(file_, error.Reason());
    }
}

std::vector<SettingEntry> SettingsFile::Everything() {
    std::vector<SettingEntry> entries;
    if (!database_) return entries;
    try {
        const SqliteStatement all(*database_, kEverything, {});
        while (all.Next()) {
            entries.push_back({all.Column(0).value_or(Text()), all.Column(1).value_or(Text()),
                               all.Column(2).value_or(Text())});
        }
    } catch (const SqliteError& error) {
        Fail(file_, error.Reason());
    }
    return entries;
}

SettingsStore::Pairs SettingsFile::GetAllSettings(TextView section) {
    Pairs pairs;
    if (!database_) return pairs;
    try {
        const SqliteStatement getAll(*database_, kGetAll, {section});
        while (getAll.Next()) {
            auto key = getAll.Column(0), value = getAll.Column(1);
            if (key && value) pairs.emplace_back(*std::move(key), *std::move(value));
        }
    } catch (const SqliteError& error) {
        Fail(file_, error.Reason());
    }
    return pairs;
}

void SettingsFile::Together(const std::function<void()>& writes) {
    // A box that tells of a failure lets the user start another save.
    if (isTogether_) return writes();
    if (!database_) Fail(file_, trouble_);
    try {
        database_->Execute("BEGIN IMMEDIATE");
        isTogether_ = true;
        writes();
        if (hasFailed_) Fail(file_, trouble_);
        database_->Execute("COMMIT");
        isTogether_ = false;
    } catch (const SqliteError& error) {
        Abandon();
        Fail(file_, error.Reason());
    } catch (...) {
        Abandon();
        throw;
    }
}

void SettingsFile::Abandon() {
    database_->RollBack();
    isTogether_ = hasFailed_ = false;
}

}  // namespace swiftroll::platform
