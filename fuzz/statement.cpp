// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/literals.h"
#include "fuzz/target.h"
#include "platform/data_error.h"
#include "platform/jet_sql.h"
#include "platform/sqlite_database.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

// A statement changes in its dates alone and runs as one or not at all; a value that can be written
// is read back as it was.

namespace {

int allow(void* /*data*/, int action, const char* /*first*/, const char* /*second*/,
          const char* /*database*/, const char* /*trigger*/) {
    // Some of them act while they are compiled and would last beyond the input.
    return action == SQLITE_PRAGMA ? SQLITE_DENY : SQLITE_OK;
}

SqliteDatabase& database() {
    static const QTemporaryDir folder;
    static SqliteDatabase opened(folder.filePath(u"fuzz"_s), SqliteDatabase::Mode::create);
    static const int authorized = sqlite3_set_authorizer(
        sqlite3_db_handle(opened.prepare(u"select 1"_s).get()), &allow, nullptr);
    expect(authorized == SQLITE_OK, "the authorizer is set");
    return opened;
}

/// Dates get quotes; whatever stands in quotes or brackets, or behind a mark without a partner,
/// stays.
void check_translation(const QString& statement) {
    static const QRegularExpression marked(
        uR"('[^']*(?:'|\z)|"[^"]*(?:"|\z)|`[^`]*(?:`|\z)|\[[^\]]*(?:\]|\z)|#[^#]*(?:#|\z))"_s);
    QString expected = statement;
    for (auto match = marked.globalMatch(statement); match.hasNext();) {
        const auto piece = match.next();
        const QStringView text = piece.capturedView();
        if (text.size() > 1 && text.startsWith(u'#') && text.endsWith(u'#') &&
            !text.contains(u'\'')) {
            expected[piece.capturedStart()] = expected[piece.capturedEnd() - 1] = u'\'';
        }
    }
    expect(translate_jet_sql(statement) == expected, "dates alone are changed");
}

void check_single(const QString& statement) {
    const auto prepared = database().prepare(statement);
    const QByteArrayView read(sqlite3_sql(prepared.get()));
    const QByteArray rest = translate_jet_sql(statement).toUtf8().sliced(read.size());
    sqlite3_stmt* second = nullptr;
    sqlite3_prepare_v2(sqlite3_db_handle(prepared.get()), rest.constData(), -1, &second, nullptr);
    expect(second == nullptr, "nothing is left behind the statement");
}

void check_value(const QString& text) {
    const auto prepared =
        database().prepare(u"select #2024/01/31#, %1, '#'"_s.arg(text_literal(text)));
    expect(database().step(prepared), "the value is selected");
    const QByteArray read(reinterpret_cast<const char*>(sqlite3_column_text(prepared.get(), 1)),
                          sqlite3_column_bytes(prepared.get(), 1));
    expect(read == text.toUtf8(), "the value comes back as it was");
    expect(sqlite3_column_count(prepared.get()) == 3 && !database().step(prepared),
           "the statement is what it was");
}

template <class Check>
void unless_refused(const Check& check, const QString& text) {
    try {
        check(text);
    } catch (const DataError&) { // NOLINT(bugprone-empty-catch): refused, as it may be
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(view_input(data, size));
    check_translation(text);
    unless_refused(check_single, text);
    unless_refused(check_value, text);
    return 0;
}
