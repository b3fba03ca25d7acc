#pragma once

#include <exception>
#include <optional>
#include <string>

#include "text/text.h"

struct sqlite3;
struct sqlite3_stmt;

namespace swiftroll::platform {

/// What SQLite could not do.
class SqliteError : public std::exception {
  public:
    explicit SqliteError(int code) : code_(code) {}
    /// Why, in French.
    TextView Reason() const;
    /// Whether the file is damaged, or none that this program wrote.
    bool IsDamage() const;
    const char* what() const noexcept override { return "SQLite"; }

  private:
    int code_;
};

/// An open database file. Texts stand in it as UTF-8.
class SqliteFile {
  public:
    /// Opens or creates a file. @throws SqliteError
    explicit SqliteFile(const std::string& name);
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;
    ~SqliteFile();

    /// Runs statements that give no rows. @throws SqliteError
    void Execute(const char* sql) const;
    /// Looks at every page. @throws SqliteError when one is damaged, or the file cannot be read
    void CheckWhole() const;
    bool IsReadOnly() const;
    /// Ends a transaction without its writes, if there is one.
    void RollBack() const;

  private:
    friend class SqliteStatement;
    sqlite3* database_ = nullptr;
};

/// One statement, whose parameters are texts in their order.
class SqliteStatement {
  public:
    /// @throws SqliteError
    SqliteStatement(const SqliteFile& file, const char* sql, std::initializer_list<TextView> parameters = {});
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;
    ~SqliteStatement();

    /// Goes to the next row; false when there is none. @throws SqliteError
    bool Next() const;
    /// A column of the row, from 0; nothing when it is no text of the code page.
    std::optional<Text> Column(int index) const;

  private:
    sqlite3_stmt* statement_ = nullptr;
};

}  // namespace swiftroll::platform
