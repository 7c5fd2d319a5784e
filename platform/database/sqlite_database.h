// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/sqlite_statement.h"

#include <unordered_map>

/// A connection to an SQLite database file. Commits are durable: write-ahead log, synchronous FULL.
class sqlite_database final : public physical_database {
public:
    /// See open_database.
    explicit sqlite_database(const QString& path, open_mode mode = open_mode::existing,
                             int lock_wait = lock_wait_ms);
    ~sqlite_database() override;
    Q_DISABLE_COPY_MOVE(sqlite_database)

    [[nodiscard]] row_store rows(const QString& statement,
                                 const QVariantList& values = {}) override;
    void for_each_row(const QString& statement, const row_visitor& visit) override;
    void execute(const QString& statement, const QVariantList& values = {}) override;
    void execute_script(const char* script) override;
    [[nodiscard]] std::unique_ptr<prepared_statement> prepare(const QString& statement) override;

    void begin(purpose wanted) override;
    void commit() override;
    void rollback() override;
    [[nodiscard]] bool in_transaction() const override;
    void write_ahead() override;

    /// The file was not deleted, renamed or replaced since.
    [[nodiscard]] bool alive() override;
    [[nodiscard]] qint64 changed_rows() const override;
    [[nodiscard]] qint64 last_key() override;
    [[nodiscard]] QString row_key(const QString& table) override;
    [[nodiscard]] QStringList table_names() override;
    [[nodiscard]] int schema_version() override;
    void set_schema_version(int version) override;
    void copy_to(physical_database& target) override;
    /// Writes the log back into the file and empties it.
    void rest() override;

    [[nodiscard]] sqlite3* handle() const noexcept { return handle_.get(); }

private:
    void open(const QString& name, int flags);
    void run_first(const char* sql, const QString& path);
    [[nodiscard]] sqlite_statement& kept_statement(const QString& beginning);

    struct handle_deleter {
        void operator()(sqlite3* handle) const noexcept;
    };
    std::unique_ptr<sqlite3, handle_deleter> handle_;
    /// Statements that end in a number, without it; gone before the connection is.
    std::unordered_map<QString, sqlite_statement> kept_;
    int lock_wait_;
};
