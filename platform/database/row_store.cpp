// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/row_store.h"

#include <QLocale>

#include <algorithm>
#include <bit>

namespace {

/// A byte order mark at the start is a character like any other here; the toolkit would drop it.
QString to_text(QByteArrayView utf8) {
    const QString text = QString::fromUtf8(utf8);
    return utf8.startsWith("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}

} // namespace

qsizetype row_store::column(QStringView name) const {
    const auto found =
        std::find_if(columns_.begin(), columns_.end(), [name](const QString& column) {
            return name.compare(column, Qt::CaseInsensitive) == 0;
        });
    return found == columns_.end() ? -1 : found - columns_.begin();
}

qsizetype row_store::rows() const noexcept {
    return columns_.isEmpty() ? 0 : std::ssize(cells_) / columns_.size();
}

void row_store::append_null() {
    cells_.emplace_back();
}

void row_store::append_integer(qint64 value) {
    cell& added = cells_.emplace_back();
    added.type = Type::integer;
    added.content = value;
}

void row_store::append_real(double value) {
    cell& added = cells_.emplace_back();
    added.type = Type::real;
    added.content = std::bit_cast<qint64>(value);
}

void row_store::append_text(QByteArrayView utf8) {
    cells_.push_back(make_text(utf8));
}

void row_store::append_row() {
    cells_.resize(cells_.size() + static_cast<size_t>(columns_.size()));
}

std::vector<qint64> row_store::take_first_column() {
    std::vector<qint64> taken;
    std::vector<cell> left;
    const auto width = static_cast<size_t>(columns_.size());
    for (size_t i = 0; i < cells_.size(); ++i) {
        if (i % width == 0) {
            taken.push_back(cells_[i].content);
        } else {
            left.push_back(cells_[i]);
        }
    }
    cells_ = std::move(left);
    columns_.removeFirst();
    return taken;
}

row_store::Type row_store::type(qsizetype row, qsizetype column) const {
    return at(row, column).type;
}

qint64 row_store::integer(qsizetype row, qsizetype column) const {
    return at(row, column).content;
}

double row_store::real(qsizetype row, qsizetype column) const {
    return std::bit_cast<double>(at(row, column).content);
}

QByteArrayView row_store::utf8(qsizetype row, qsizetype column) const {
    const cell& found = at(row, column);
    return {texts_.data() + found.content, static_cast<qsizetype>(found.length)};
}

QString row_store::text(qsizetype row, qsizetype column) const {
    switch (type(row, column)) {
    case Type::text:
        return to_text(utf8(row, column));
    case Type::integer:
        return QString::number(integer(row, column));
    case Type::real:
        return QString::number(real(row, column), 'g', QLocale::FloatingPointShortest);
    case Type::null:
        break;
    }
    return {};
}

QVariant row_store::value(qsizetype row, qsizetype column) const {
    switch (type(row, column)) {
    case Type::text:
        return text(row, column);
    case Type::integer:
        return integer(row, column);
    case Type::real:
        return real(row, column);
    case Type::null:
        break;
    }
    return {};
}

void row_store::set_value(qsizetype row, qsizetype column, const QVariant& value) {
    cell changed;
    if (value.isNull()) {
        changed.type = Type::null;
    } else if (value.typeId() == QMetaType::Double) {
        changed.type = Type::real;
        changed.content = std::bit_cast<qint64>(value.toDouble());
    } else if (value.typeId() == QMetaType::QString) {
        changed = make_text(value.toString().toUtf8());
    } else {
        changed.type = Type::integer;
        changed.content = value.toLongLong();
    }
    cells_.at(static_cast<size_t>(row * columns_.size() + column)) = changed;
}

row_store::cell row_store::make_text(QByteArrayView utf8) {
    cell made;
    made.type = Type::text;
    made.length = static_cast<quint32>(utf8.size());
    made.content = std::ssize(texts_);
    texts_.append(utf8.data(), static_cast<size_t>(utf8.size()));
    return made;
}

const row_store::cell& row_store::at(qsizetype row, qsizetype column) const {
    return cells_.at(static_cast<size_t>(row * columns_.size() + column));
}
