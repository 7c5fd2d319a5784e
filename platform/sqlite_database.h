// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// One physical connection to a database file. Opened connections wait for another program's lock
/// up to `lock_wait_ms` and make every commit durable before it returns.
class SqliteDatabase {
public:
    /// The usual wait for a lock, in milliseconds.
    static constexpr int lock_wait_ms = 3000;

    enum class Mode {
        existing,
        create,    ///< makes an empty file, readable by its owner alone, where there is none
        read_only, ///< changes no byte of the file and leaves no log that was not there; works
                   ///< where nothing can be written at all
        memory,    ///< an empty database of its own in memory; the path is not used
    };

    /// Opens the file. `lock_wait` is how long opening and every statement wait for a lock, in
    /// milliseconds. Throws DataError (missing_file, cannot_open, old_format, not_a_database,
    /// locked).
    explicit SqliteDatabase(const QString& path, Mode mode = Mode::existing,
                            int lock_wait = lock_wait_ms);
    ~SqliteDatabase();
    Q_DISABLE_COPY_MOVE(SqliteDatabase)

    struct statement_deleter {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };
    using statement = std::unique_ptr<sqlite3_stmt, statement_deleter>;

    /// Compiles exactly one statement (Jet's forms translated); anything behind it is refused.
    [[nodiscard]] statement prepare(const QString& sql);
    /// One step; true when there is a row. Throws DataError.
    bool step(const statement& prepared);
    /// Prepares and runs one statement to its end.
    void execute(const QString& sql);
    /// Runs several statements separated by ";" as they stand.
    void execute_script(const char* sql);

    [[nodiscard]] qint64 last_insert_rowid() const;
    /// How many rows this connection has changed since it was opened.
    [[nodiscard]] int total_changes() const;
    [[nodiscard]] bool in_transaction() const;
    /// The file under the open connection was deleted, renamed or replaced since.
    [[nodiscard]] bool moved() const;
    /// Copies all content over that of `target`, as it is at this moment: others may go on writing
    /// meanwhile. Throws DataError.
    void copy_to(SqliteDatabase& target);
    /// Writes out what the open transaction has changed, so that a full disk shows already now and
    /// not when it is committed. Throws DataError.
    void write_ahead();
    /// Writes the log back into the file and empties it, unless somebody is reading from it just
    /// now.
    void fold_log();

private:
    void open(const QString& name, int flags);
    void run_first(const char* sql, const QString& path);
    [[noreturn]] void raise() const;

    struct handle_deleter {
        void operator()(sqlite3* handle) const noexcept;
    };
    std::unique_ptr<sqlite3, handle_deleter> handle_;
};
