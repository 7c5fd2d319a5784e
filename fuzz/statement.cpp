// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/literals.h"
#include "fuzz/target.h"
#include "platform/data_error.h"
#include "platform/database/jet_sql.h"
#include "platform/database/sqlite_database.h"

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

sqlite_database& database() {
    static const QTemporaryDir folder;
    static sqlite_database opened(folder.filePath(u"fuzz"_s), physical_database::open_mode::create);
    static const int authorized = sqlite3_set_authorizer(opened.handle(), &allow, nullptr);
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
    const sqlite_statement prepared(database().handle(), statement);
    const QByteArrayView read(sqlite3_sql(prepared.handle()));
    const QByteArray rest = translate_jet_sql(statement).toUtf8().sliced(read.size());
    sqlite3_stmt* second = nullptr;
    sqlite3_prepare_v2(database().handle(), rest.constData(), -1, &second, nullptr);
    expect(second == nullptr, "nothing is left behind the statement");
}

void check_value(const QString& text) {
    const row_store rows =
        database().rows(u"select #2024/01/31#, %1, '#'"_s.arg(text_literal(text)));
    expect(rows.rows() == 1 && rows.columns().size() == 3, "the statement is what it was");
    expect(rows.utf8(0, 1) == text.toUtf8(), "the value comes back as it was");
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
