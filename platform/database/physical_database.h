// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/row_store.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

/// One physical connection to a database, whatever engine stands behind it. It waits for a lock of
/// somebody else's up to `lock_wait_ms`, and every commit is durable before it returns. Statements
/// are written in Jet's SQL; the engine turns what it lacks into its own. Every operation throws
/// DataError.
class physical_database {
public:
    /// The usual wait for a lock, in milliseconds.
    static constexpr int lock_wait_ms = 3000;

    enum class open_mode {
        existing,
        create,    ///< makes an empty file, readable by its owner alone, where there is none
        read_only, ///< changes no byte of the file and leaves no log that was not there; works
                   ///< where nothing can be written at all
        memory,    ///< an empty database of its own in memory; the place is not used
    };

    /// What a transaction is begun for.
    enum class purpose {
        reading, ///< one moment for all that is read
        writing, ///< the only writer from the beginning on
        alone,   ///< nobody else even reads
    };

    /// A statement kept for many runs. Belongs to its connection and must not outlive it.
    class prepared_statement {
    public:
        prepared_statement() = default;
        virtual ~prepared_statement() = default;
        Q_DISABLE_COPY_MOVE(prepared_statement)

        /// Runs it with these values in the place of its question marks, in their order; an
        /// invalid one is Null. Its rows are dropped.
        virtual void run(const QVariantList& values) = 0;
        /// The same, and gives the rows.
        [[nodiscard]] virtual row_store rows(const QVariantList& values) = 0;
    };

    /// One row while it is read. Columns count from 0.
    class result_row {
    public:
        result_row() = default;
        virtual ~result_row() = default;
        Q_DISABLE_COPY_MOVE(result_row)

        /// The position of a column by its name without regard to case, or -1.
        [[nodiscard]] virtual int column(QStringView name) const = 0;
        /// qlonglong, double, QString, or an invalid QVariant for Null.
        [[nodiscard]] virtual QVariant value(int column) const = 0;
        /// Any value as text; Null is empty.
        [[nodiscard]] virtual QString text(int column) const = 0;
    };
    using row_visitor = std::function<void(const result_row&)>;

    physical_database() = default;
    virtual ~physical_database() = default;
    Q_DISABLE_COPY_MOVE(physical_database)

    /// The rows of exactly one statement; `values` take the place of its question marks and may be
    /// any text, also one with quotes in it.
    [[nodiscard]] virtual row_store rows(const QString& statement,
                                         const QVariantList& values = {}) = 0;
    /// Hands over the rows of exactly one statement one by one and keeps none.
    virtual void for_each_row(const QString& statement, const row_visitor& visit) = 0;
    /// Runs exactly one statement to its end and drops its rows.
    virtual void execute(const QString& statement, const QVariantList& values = {}) = 0;
    /// Runs several statements separated by ";" as they stand, in the engine's own SQL.
    virtual void execute_script(const char* script) = 0;
    [[nodiscard]] virtual std::unique_ptr<prepared_statement> prepare(const QString& statement) = 0;

    // Through class transaction; these are what it is made of.
    virtual void begin(purpose wanted) = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
    [[nodiscard]] virtual bool in_transaction() const = 0;
    /// Writes out what the open transaction has changed, so that a full disk shows already now and
    /// not when it is committed.
    virtual void write_ahead() = 0;

    /// What is behind the connection is still what it was opened on.
    [[nodiscard]] virtual bool alive() = 0;
    /// How many rows this connection has changed since it was opened.
    [[nodiscard]] virtual qint64 changed_rows() const = 0;
    /// The key that the row inserted last was given.
    [[nodiscard]] virtual qint64 last_key() = 0;
    /// The column that names a row of the table for good.
    [[nodiscard]] virtual QString row_key(const QString& table) = 0;
    [[nodiscard]] virtual QStringList table_names() = 0;
    /// A number that the owner of the schema keeps with it; 0 at first.
    [[nodiscard]] virtual int schema_version() = 0;
    virtual void set_schema_version(int version) = 0;
    /// Copies all content over that of `target`, a connection of the same engine, as it is at this
    /// moment: others may go on writing meanwhile.
    virtual void copy_to(physical_database& target) = 0;
    /// Brings what was written to rest, unless somebody is reading just now: the place alone then
    /// holds everything.
    virtual void rest() = 0;

    /// The first column of every row, as texts; Null is empty.
    [[nodiscard]] QStringList column(const QString& statement);
    /// Every row, each value as text; Null is empty.
    [[nodiscard]] QList<QStringList> texts(const QString& statement,
                                           const QVariantList& values = {});
    /// The whole number that a query gives; 0 when it gives none.
    [[nodiscard]] qint64 number(const QString& statement);
};

/// Opens a connection to the database at `place`, the path of a file. `lock_wait` is how long
/// opening and every statement wait for a lock, in milliseconds. Throws DataError (missing_file,
/// cannot_open, old_format, not_a_database, locked).
[[nodiscard]] std::unique_ptr<physical_database>
open_database(const QString& place,
              physical_database::open_mode mode = physical_database::open_mode::existing,
              int lock_wait = physical_database::lock_wait_ms);
