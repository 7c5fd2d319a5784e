// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "platform/conversion.h"
#include "platform/data_error.h"
#include "platform/database/recordset.h"

#include <QCollator>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

// Find goes to the row that a plain loop finds, sort gives every row once and in order; any other
// criterion or order is refused and leaves the set as it was.

namespace {

constexpr qsizetype most_rows = 4;

QVariant read_cell(const QString& line) {
    bool is_number = false;
    if (const qint64 integer = line.toLongLong(&is_number); is_number) {
        return integer;
    }
    if (const double real = line.toDouble(&is_number); is_number && std::isfinite(real)) {
        return real;
    }
    return line.isEmpty() ? QVariant() : QVariant(line);
}

bool is_wanted(const QVariant& cell, const QString& wanted) {
    if (cell.typeId() != QMetaType::QString) {
        bool is_number = false;
        const double number = wanted.toDouble(&is_number);
        return !cell.isNull() && is_number && cell.toDouble() == number;
    }
    const QDateTime moment = read_datetime(wanted);
    return moment.isValid() ? read_datetime(cell.toString()) == moment
                            : cell.toString().compare(wanted, Qt::CaseInsensitive) == 0;
}

void check_find(Recordset& rs, const QList<QVariant>& cells, const QString& wanted) {
    using Direction = Recordset::SearchDirectionEnum;
    const QString criterion = u"mtext='"_s + wanted + u'\'';
    const auto matches = [&wanted](const QVariant& cell) { return is_wanted(cell, wanted); };
    const qsizetype start = cells.size() / 2;
    rs.set_position(start);
    rs.Find(criterion, 1, Direction::forward);
    const auto next = std::find_if(cells.begin() + start + 1, cells.end(), matches);
    expect(rs.position() == next - cells.begin(), "the next match is found");
    rs.set_position(start);
    rs.Find(criterion, 1, Direction::backward);
    const auto previous = std::find_if(cells.rend() - start, cells.rend(), matches);
    expect(rs.position() == cells.rend() - previous - 1, "the one before is found");
}

/// Negative, zero or positive: Null, then numbers, then texts as a Chinese dictionary has them.
int compare(const QVariant& left, const QVariant& right) {
    static const QCollator collator = [] {
        QCollator made(QLocale(QLocale::Chinese, QLocale::China));
        made.setCaseSensitivity(Qt::CaseInsensitive);
        return made;
    }();
    const auto rank = [](const QVariant& cell) {
        return cell.isNull() ? 0 : cell.typeId() == QMetaType::QString ? 2 : 1;
    };
    if (rank(left) != rank(right) || rank(left) == 0) {
        return rank(left) - rank(right);
    }
    if (rank(left) == 2) {
        return collator.compare(left.toString(), right.toString());
    }
    return left.toDouble() < right.toDouble() ? -1 : left.toDouble() > right.toDouble() ? 1 : 0;
}

void check_sort(Recordset& rs, const QList<QVariant>& cells, bool descending) {
    rs.set_Sort(descending ? u"mtext DESC"_s : u"mtext ASC "_s);
    for (qsizetype i = 1; i < cells.size(); ++i) {
        const qsizetype before = rs.store_row(i - 1);
        const qsizetype row = rs.store_row(i);
        const int order =
            compare(cells[descending ? row : before], cells[descending ? before : row]);
        expect(order < 0 || (order == 0 && before < row), "in order, equal rows as they came");
    }
}

} // namespace

// The first line is the value, criterion or order, each further one a cell.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QStringList lines = QString::fromUtf8(view_input(data, size)).split(u'\n');
    const QString& first = lines.first();
    Recordset rs;
    rs.OpenInMemory({u"mid"_s, u"mtext"_s});
    QList<QVariant> cells;
    for (const QString& line : lines.mid(1, most_rows)) {
        cells.append(read_cell(line));
        rs.AddNew();
        rs.set_Fields(u"mtext"_s, cells.last());
    }
    if (!cells.isEmpty() && !first.contains(u'\'')) {
        check_find(rs, cells, first);
    }
    check_sort(rs, cells, false);
    check_sort(rs, cells, true);

    const qsizetype top = rs.store_row(0);
    try {
        rs.Find(first, 1);
    } catch (const DataError&) {
        expect(rs.position() == 0, "a refused criterion leaves the cursor");
    }
    try {
        rs.set_Sort(first);
    } catch (const DataError&) {
        expect(rs.store_row(0) == top, "a refused order leaves the rows");
    }
    return 0;
}
