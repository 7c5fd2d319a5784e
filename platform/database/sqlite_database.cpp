// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/sqlite_database.h"

#include "platform/database/sqlite_errors.h"
#include "platform/database/transaction.h"

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

/// Where the number begins that the statement ends in, as in "update … where smsid=15"; its length
/// when it ends in none.
qsizetype start_of_last_number(const QString& statement) {
    constexpr qsizetype most_digits = 18; // of a 64-bit number, whatever they are
    qsizetype start = statement.size();
    while (start > 0 && statement[start - 1] >= u'0' && statement[start - 1] <= u'9') {
        --start;
    }
    const bool is_compared =
        statement.startsWith("update "_L1) && start > 0 && statement[start - 1] == u'=';
    return is_compared && statement.size() - start <= most_digits ? start : statement.size();
}

} // namespace

void sqlite_database::handle_deleter::operator()(sqlite3* handle) const noexcept {
    sqlite3_close_v2(handle);
}

sqlite_database::sqlite_database(const QString& path, open_mode mode, int lock_wait)
    : lock_wait_(lock_wait) {
    if (mode != open_mode::memory && !QFileInfo::exists(path)) {
        if (mode != open_mode::create) {
            throw DataError(DataError::Kind::missing_file, path);
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
            throw DataError(DataError::Kind::cannot_open, file.errorString());
        }
    }
    const auto [name, flags] =
        mode == open_mode::read_only
            ? reading_of(path)
            : reading{mode == open_mode::memory ? u":memory:"_s : QDir::toNativeSeparators(path),
                      SQLITE_OPEN_READWRITE};
    open(name, flags);
    // Not waited for: a file on a read-only medium or held by somebody else keeps its mode.
    if (mode == open_mode::existing) {
        run_first("PRAGMA journal_mode=WAL", path);
    } else if (mode == open_mode::read_only) {
        run_first("PRAGMA query_only=1; SELECT 1 FROM sqlite_master", path);
    }
    sqlite3_busy_timeout(handle(), lock_wait);
    execute_script("PRAGMA synchronous=FULL");
}

sqlite_database::~sqlite_database() = default;

void sqlite_database::open(const QString& name, int flags) {
    sqlite3* opened = nullptr;
    const int result =
        sqlite3_open_v2(name.toUtf8().constData(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(opened);
    if (result != SQLITE_OK) {
        throw DataError(DataError::Kind::cannot_open, QString::fromUtf8(sqlite3_errstr(result)));
    }
    sqlite3_extended_result_codes(opened, 1);
}

void sqlite_database::run_first(const char* sql, const QString& path) {
    const int result = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    if (kind_of_sqlite_result(result) == DataError::Kind::not_a_database) {
        const QString detail = QString::fromUtf8(sqlite3_errmsg(handle()));
        handle_.reset();
        if (is_old_format(path)) {
            throw DataError(DataError::Kind::old_format, path);
        }
        throw DataError(DataError::Kind::not_a_database, detail);
    }
}

row_store sqlite_database::rows(const QString& statement, const QVariantList& values) {
    return sqlite_statement(handle(), statement).rows(values);
}

void sqlite_database::for_each_row(const QString& statement, const row_visitor& visit) {
    sqlite_statement(handle(), statement).for_each_row(visit);
}

void sqlite_database::execute(const QString& statement, const QVariantList& values) {
    const qsizetype number = start_of_last_number(statement);
    if (number == statement.size() || !values.isEmpty()) {
        sqlite_statement(handle(), statement).run(values);
    } else {
        kept_statement(statement.first(number)).run({statement.sliced(number).toLongLong()});
    }
}

/// What is run for one number after another is compiled once.
sqlite_statement& sqlite_database::kept_statement(const QString& beginning) {
    constexpr size_t most_kept = 8;
    if (const auto found = kept_.find(beginning); found != kept_.end()) {
        return found->second;
    }
    if (kept_.size() >= most_kept) {
        kept_.clear();
    }
    return kept_.try_emplace(beginning, handle(), beginning + u'?').first->second;
}

void sqlite_database::execute_script(const char* script) {
    if (sqlite3_exec(handle(), script, nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise_sqlite_error(handle());
    }
}

std::unique_ptr<physical_database::prepared_statement>
sqlite_database::prepare(const QString& statement) {
    return std::make_unique<sqlite_statement>(handle(), statement);
}

void sqlite_database::begin(purpose wanted) {
    switch (wanted) {
    case purpose::reading:
        execute_script(
            "BEGIN; SELECT 1 FROM sqlite_master"); // the moment is that of the first read
        break;
    case purpose::writing:
        execute_script("BEGIN IMMEDIATE");
        break;
    case purpose::alone:
        execute_script("BEGIN EXCLUSIVE");
        break;
    }
}

void sqlite_database::commit() {
    execute_script("COMMIT");
}

void sqlite_database::rollback() {
    execute_script("ROLLBACK");
}

bool sqlite_database::in_transaction() const {
    return sqlite3_get_autocommit(handle()) == 0;
}

void sqlite_database::write_ahead() {
    const int result = sqlite3_db_cacheflush(handle());
    if (result != SQLITE_OK) {
        throw DataError(kind_of_sqlite_result(result), QString::fromUtf8(sqlite3_errstr(result)));
    }
}

bool sqlite_database::alive() {
    int has_moved = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &has_moved);
    return has_moved == 0;
}

qint64 sqlite_database::changed_rows() const {
    return sqlite3_total_changes(handle());
}

qint64 sqlite_database::last_key() {
    return sqlite3_last_insert_rowid(handle());
}

QString sqlite_database::row_key(const QString& /*table*/) {
    return u"rowid"_s;
}

QStringList sqlite_database::table_names() {
    return column(
        u"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY rowid"_s);
}

int sqlite_database::schema_version() {
    return static_cast<int>(number(u"PRAGMA user_version"_s));
}

void sqlite_database::set_schema_version(int version) {
    execute(u"PRAGMA user_version = %1"_s.arg(version));
}

void sqlite_database::copy_to(physical_database& target) {
    constexpr int pages_a_step = 1024;
    auto* to = dynamic_cast<sqlite_database*>(&target);
    if (to == nullptr) {
        throw DataError(DataError::Kind::statement, u"the two databases are of two engines"_s);
    }
    // An open read transaction keeps the moment: otherwise every write of somebody else's would
    // start the copy over.
    const transaction moment(*this, purpose::reading);
    sqlite3_backup* copying = sqlite3_backup_init(to->handle(), "main", handle(), "main");
    if (copying == nullptr) {
        raise_sqlite_error(to->handle());
    }
    while (sqlite3_backup_step(copying, pages_a_step) == SQLITE_OK) {
    }
    if (sqlite3_backup_finish(copying) != SQLITE_OK) {
        raise_sqlite_error(to->handle());
    }
}

void sqlite_database::rest() {
    sqlite3_busy_timeout(handle(), 0);
    sqlite3_wal_checkpoint_v2(handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    sqlite3_busy_timeout(handle(), lock_wait_);
}
