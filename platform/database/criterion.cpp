// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/criterion.h"

#include "platform/data_error.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString& text) {
    throw DataError(DataError::Kind::criterion, u"cannot read \"%1\""_s.arg(text.left(80)));
}

} // namespace

qsizetype parse_column(QStringView name, const row_store& store) {
    name = name.trimmed();
    if (name.startsWith(u'[') && name.endsWith(u']')) {
        name = name.sliced(1, name.size() - 2);
    }
    const qsizetype column = store.column(name);
    if (column < 0) {
        throw DataError(DataError::Kind::criterion,
                        u"no column \"%1\""_s.arg(name.toString().left(80)));
    }
    return column;
}

criterion::criterion(const QString& text, const row_store& store) {
    static const QRegularExpression pattern(
        uR"(^\s*(\w+|\[[^\]]+\])\s*=\s*(?:'([^']*)'|([+-]?[0-9.]+))\s*$)"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    const auto match = pattern.match(text);
    if (!match.hasMatch()) {
        refuse(text);
    }
    column_ = parse_column(match.capturedView(1), store);
    const bool quoted = match.capturedStart(2) >= 0;
    value_ = match.captured(quoted ? 2 : 3);
    bool is_number = false;
    const double number = value_.toDouble(&is_number);
    if (is_number) {
        number_ = number;
    } else if (!quoted) {
        refuse(text);
    }
    moment_ = read_wall_time(value_);
}

bool criterion::matches(const row_store& store, qsizetype row) const {
    switch (store.type(row, column_)) {
    case row_store::Type::text:
        return matches_text(store.text(row, column_));
    case row_store::Type::integer:
        return number_ && static_cast<double>(store.integer(row, column_)) == *number_;
    case row_store::Type::real:
        return number_ && store.real(row, column_) == *number_;
    case row_store::Type::null:
        break;
    }
    return false;
}

bool criterion::matches_text(const QString& text) const {
    // Shown dates and stored ones differ in their marks; both name the same moment.
    if (moment_) {
        return read_wall_time(text) == moment_;
    }
    return text.compare(value_, Qt::CaseInsensitive) == 0;
}
