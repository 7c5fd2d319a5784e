// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/sqlite_database.h"

#include "platform/data_error.h"
#include "platform/jet_sql.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// The old format names itself from the fifth byte of the file on. Only for a file that the engine
/// has refused: closing any descriptor of an open database drops every lock that this process holds
/// on it.
bool is_old_format(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray header = file.read(20).sliced(qMin<qsizetype>(4, file.pos()));
    return header.startsWith("Standard Jet DB") || header.startsWith("Standard ACE DB");
}

/// What to open for reading alone, and how.
struct reading {
    QString name;
    int flags;
};

/// Such a reader cannot take away the log that it has to make where there is none: there it may
/// write, and `query_only` holds it back. Where none can be made, nobody else writes either.
reading reading_of(const QString& path) {
    if (QFileInfo::exists(path + u"-wal"_s) || QFileInfo::exists(path + u"-journal"_s)) {
        return {QDir::toNativeSeparators(path), SQLITE_OPEN_READONLY};
    }
    const QFileInfo file(path);
    if (QFileInfo(file.absolutePath()).isWritable()) {
        return {QDir::toNativeSeparators(path), SQLITE_OPEN_READWRITE};
    }
    const QByteArray url = QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded();
    return {QString::fromLatin1(url + "?immutable=1"), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI};
}

DataError::Kind kind_of(int result_code) {
    switch (result_code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return DataError::Kind::locked;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return DataError::Kind::not_a_database;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_READONLY:
        return DataError::Kind::cannot_open;
    case SQLITE_FULL:
    case SQLITE_IOERR:
        return DataError::Kind::disk;
    default:
        return DataError::Kind::statement;
    }
}

bool is_blank(QByteArrayView rest) {
    return std::all_of(rest.begin(), rest.end(),
                       [](char c) { return c == ';' || QChar::isSpace(static_cast<uchar>(c)); });
}

} // namespace

void SqliteDatabase::statement_deleter::operator()(sqlite3_stmt* statement) const noexcept {
    sqlite3_finalize(statement);
}

void SqliteDatabase::handle_deleter::operator()(sqlite3* handle) const noexcept {
    sqlite3_close_v2(handle);
}

SqliteDatabase::SqliteDatabase(const QString& path, Mode mode, int lock_wait) {
    if (mode != Mode::memory && !QFileInfo::exists(path)) {
        if (mode != Mode::create) {
            throw DataError(DataError::Kind::missing_file, path);
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
            throw DataError(DataError::Kind::cannot_open, file.errorString());
        }
    }
    const auto [name, flags] =
        mode == Mode::read_only
            ? reading_of(path)
            : reading{mode == Mode::memory ? u":memory:"_s : QDir::toNativeSeparators(path),
                      SQLITE_OPEN_READWRITE};
    open(name, flags);
    // Not waited for: a file on a read-only medium or held by somebody else keeps its mode.
    if (mode == Mode::existing) {
        run_first("PRAGMA journal_mode=WAL", path);
    } else if (mode == Mode::read_only) {
        run_first("PRAGMA query_only=1; SELECT 1 FROM sqlite_master", path);
    }
    sqlite3_busy_timeout(handle_.get(), lock_wait);
    execute_script("PRAGMA synchronous=FULL");
}

SqliteDatabase::~SqliteDatabase() = default;

void SqliteDatabase::open(const QString& name, int flags) {
    sqlite3* handle = nullptr;
    const int result =
        sqlite3_open_v2(name.toUtf8().constData(), &handle, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) {
        throw DataError(DataError::Kind::cannot_open, QString::fromUtf8(sqlite3_errstr(result)));
    }
    sqlite3_extended_result_codes(handle, 1);
}

void SqliteDatabase::run_first(const char* sql, const QString& path) {
    const int result = sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr);
    if (kind_of(result) == DataError::Kind::not_a_database) {
        const QString detail = QString::fromUtf8(sqlite3_errmsg(handle_.get()));
        handle_.reset();
        if (is_old_format(path)) {
            throw DataError(DataError::Kind::old_format, path);
        }
        throw DataError(DataError::Kind::not_a_database, detail);
    }
}

void SqliteDatabase::raise() const {
    throw DataError(kind_of(sqlite3_extended_errcode(handle_.get())),
                    QString::fromUtf8(sqlite3_errmsg(handle_.get())));
}

SqliteDatabase::statement SqliteDatabase::prepare(const QString& sql) {
    const QByteArray text = translate_jet_sql(sql).toUtf8();
    // The engine reads up to a NUL and would run a statement that lost its end.
    if (text.contains('\0')) {
        throw DataError(DataError::Kind::statement, u"a statement holds a NUL character"_s);
    }
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    if (sqlite3_prepare_v2(handle_.get(), text.constData(), static_cast<int>(text.size()),
                           &prepared, &tail) != SQLITE_OK) {
        raise();
    }
    statement result(prepared);
    if (!result || !is_blank(QByteArrayView(tail, text.constEnd()))) {
        throw DataError(DataError::Kind::statement, u"not exactly one statement"_s);
    }
    return result;
}

bool SqliteDatabase::step(const statement& prepared) {
    switch (sqlite3_step(prepared.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        raise();
    }
}

void SqliteDatabase::execute(const QString& sql) {
    const statement prepared = prepare(sql);
    while (step(prepared)) {
    }
}

void SqliteDatabase::execute_script(const char* sql) {
    if (sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise();
    }
}

qint64 SqliteDatabase::last_insert_rowid() const {
    return sqlite3_last_insert_rowid(handle_.get());
}

int SqliteDatabase::total_changes() const {
    return sqlite3_total_changes(handle_.get());
}

void SqliteDatabase::copy_to(SqliteDatabase& target) {
    constexpr int pages_a_step = 1024;
    // An open read transaction keeps the moment: otherwise every write of somebody else's would
    // start the copy over.
    execute_script("BEGIN; SELECT 1 FROM sqlite_master");
    sqlite3_backup* copying =
        sqlite3_backup_init(target.handle_.get(), "main", handle_.get(), "main");
    if (copying == nullptr) {
        target.raise();
    }
    while (sqlite3_backup_step(copying, pages_a_step) == SQLITE_OK) {
    }
    if (sqlite3_backup_finish(copying) != SQLITE_OK) {
        target.raise();
    }
    execute_script("COMMIT");
}

void SqliteDatabase::write_ahead() {
    const int result = sqlite3_db_cacheflush(handle_.get());
    if (result != SQLITE_OK) {
        throw DataError(kind_of(result), QString::fromUtf8(sqlite3_errstr(result)));
    }
}

void SqliteDatabase::fold_log() {
    sqlite3_busy_timeout(handle_.get(), 0);
    sqlite3_wal_checkpoint_v2(handle_.get(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    sqlite3_busy_timeout(handle_.get(), lock_wait_ms);
}

bool SqliteDatabase::in_transaction() const {
    return sqlite3_get_autocommit(handle_.get()) == 0;
}

bool SqliteDatabase::moved() const {
    int has_moved = 0;
    sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &has_moved);
    return has_moved != 0;
}
