// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/jet_table.h"
#include "tools/texts.h"

#include <QDateTime>
#include <QJsonObject>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <vector>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

constexpr int deleted_or_moved_away = 0x4000;
constexpr int deleted_or_moved_here = 0x8000;

QJsonValue unreadable() {
    return QJsonObject();
}

template <class number>
QJsonValue number_in(QByteArrayView bytes) {
    if (bytes.size() != sizeof(number)) {
        return unreadable();
    }
    const auto read = static_cast<double>(qFromLittleEndian<number>(bytes.data()));
    return std::isfinite(read) ? QJsonValue(read) : unreadable();
}

/// The whole part counts days, the rest is the time of day, also before the first day.
QJsonValue moment_in(QByteArrayView bytes) {
    constexpr double seconds_a_day = 86400;
    const double stored = number_in<double>(bytes).toDouble(qQNaN());
    const double days = std::trunc(stored);
    const double second = std::round(std::abs(stored - days) * seconds_a_day);
    if (!(std::abs(days) < 4'000'000)) {
        return unreadable();
    }
    const QDateTime moment =
        QDateTime(QDate(1899, 12, 30).addDays(static_cast<qint64>(days)), QTime(0, 0), Qt::UTC)
            .addSecs(static_cast<qint64>(second));
    if (moment.date().year() < 100 || moment.date().year() > 9999) {
        return unreadable();
    }
    return moment.toString(second == 0 ? u"yyyy/MM/dd"_s : u"yyyy/MM/dd HH:mm:ss"_s);
}

/// What stands at the end of a row: a bit for each column that the table had when it was written, 0
/// for Null. The library looks for younger columns' bits behind the row.
class row_marks {
public:
    row_marks(std::span<const unsigned char> row, bool is_jet3)
        : row_(row), columns_(row.front() | (is_jet3 ? 0 : row[1] << 8)) {}

    [[nodiscard]] bool are_sound(int columns_ever) const {
        return columns_ > 0 && columns_ <= columns_ever && size() < row_.size();
    }
    [[nodiscard]] bool has_value(int column) const {
        const auto byte = static_cast<size_t>(column) / 8;
        return column < columns_ && (row_.last(size())[byte] >> (column % 8) & 1) != 0;
    }

private:
    [[nodiscard]] size_t size() const { return (static_cast<size_t>(columns_) + 7) / 8; }

    std::span<const unsigned char> row_;
    int columns_;
};

} // namespace

jet_table::jet_table(jet_file& file, const table_place& which)
    : file_(file), entry_(std::make_unique<MdbCatalogEntry>()) {
    entry_->mdb = file.handle();
    entry_->object_type = MDB_TABLE;
    entry_->table_pg = which.page;
    qstrncpy(static_cast<char*>(entry_->object_name), which.name.toUtf8().constData(),
             sizeof(entry_->object_name));
    table_.reset(mdb_read_table(entry_.get()));
    if (table_ == nullptr || mdb_read_columns(table_.get()) == nullptr ||
        table_->columns->len != table_->num_cols || !columns_are_sound()) {
        refuse(texts::tr("its columns cannot be read"));
    }
    // The library takes the map of the table's pages for granted.
    constexpr size_t least_map = 5;
    if (table_->usage_map == nullptr || table_->map_sz < least_map) {
        refuse(texts::tr("its pages cannot be found"));
    }
}

/// Columns that no table can have would be read from where something else stands.
bool jet_table::columns_are_sound() {
    MdbHandle* handle = file_.handle();
    mdb_read_pg(handle, entry_->table_pg);
    // Two fields before the number of columns; the library does not read it.
    columns_ever_ = mdb_get_int16(static_cast<unsigned char*>(handle->pg_buf),
                                  handle->fmt->tab_num_cols_offset - 4);
    std::set<QString> names;
    std::set<int> numbers;
    std::set<unsigned int> places;
    std::set<int> taken; // bytes of the fixed part
    for (const MdbColumn* column : column_list()) {
        const QString name = QString::fromUtf8(static_cast<const char*>(column->name)).toLower();
        bool is_sound = !name.isEmpty() && names.insert(name).second &&
                        column->col_num < columns_ever_ && numbers.insert(column->col_num).second;
        if (column->is_fixed == 0) {
            is_sound = is_sound && column->var_col_num < table_->num_var_cols &&
                       places.insert(column->var_col_num).second;
        }
        // The value of a Boolean takes no bytes but stands in the marks.
        const bool takes_bytes = column->is_fixed != 0 && column->col_type != MDB_BOOL;
        for (int i = 0; takes_bytes && i < column->col_size; ++i) {
            is_sound = is_sound && taken.insert(column->fixed_offset + i).second;
        }
        if (!is_sound) {
            return false;
        }
    }
    return true;
}

void jet_table::refuse(const QString& what) const {
    throw damaged(texts::tr("table %1: %2")
                      .arg(QString::fromUtf8(static_cast<const char*>(entry_->object_name)), what));
}

std::span<MdbColumn* const> jet_table::column_list() const {
    return {reinterpret_cast<MdbColumn**>(table_->columns->pdata), table_->columns->len};
}

QStringList jet_table::columns() const {
    QStringList names;
    for (const MdbColumn* column : column_list()) {
        names.append(QString::fromUtf8(static_cast<const char*>(column->name)));
    }
    return names;
}

void jet_table::for_each_place(const std::function<void(int row, const place&)>& take) {
    mdb_rewind_table(table_.get());
    while (mdb_read_next_dpg(table_.get()) != 0) {
        MdbHandle* handle = file_.handle();
        const int rows = mdb_get_int16(static_cast<unsigned char*>(handle->pg_buf),
                                       handle->fmt->row_count_offset);
        for (int row = 0; row < rows; ++row) {
            place found;
            if (mdb_find_row(handle, row, &found.start, &found.length) != 0) {
                refuse(texts::tr("a row cannot be found"));
            }
            const int flags = found.start;
            found.start &= jet_file::offset_mask;
            found.has_moved_here = (flags & deleted_or_moved_here) != 0;
            found.has_moved_away = (flags & deleted_or_moved_away) != 0;
            if (!found.has_moved_here || !found.has_moved_away) { // both: deleted
                take(row, found);
            }
        }
    }
}

/// Where the rows stand now that have outgrown their page. What moved and was deleted then, or has
/// moved on, lies about looking just the same.
QSet<quint32> jet_table::moved_rows() {
    QSet<quint32> targets;
    for_each_place([this, &targets](int /*row*/, const place& found) {
        if (found.has_moved_away) {
            if (found.length < 4) {
                refuse(texts::tr("a row that was moved cannot be found"));
            }
            targets.insert(qFromLittleEndian<quint32>(&file_.handle()->pg_buf[found.start]));
        }
    });
    return targets;
}

void jet_table::for_each_row(const std::function<void(const QJsonArray&)>& take) {
    const QSet<quint32> moved = moved_rows();
    unsigned int rows = 0;
    for_each_place([&](int row, const place& found) {
        const quint32 here = (table_->cur_phys_pg << 8) | static_cast<quint32>(row);
        if (found.has_moved_away || (found.has_moved_here && !moved.contains(here))) {
            return;
        }
        take(row_at(found));
        ++rows;
    });
    if (rows != table_->num_rows) {
        refuse(texts::tr("%1 row(s) where there should be %2").arg(rows).arg(table_->num_rows));
    }
}

const MdbColumn& jet_table::column_of(const MdbField& field) const {
    return *column_list()[static_cast<size_t>(field.colnum)];
}

QJsonArray jet_table::row_at(const place& found) {
    const auto refuse_row = [this] { refuse(texts::tr("a row cannot be read")); };
    if (found.length < 2) {
        refuse_row();
    }
    std::vector<MdbField> fields(table_->num_cols);
    const int there = mdb_crack_row(table_.get(), found.start, found.length, fields.data());
    const row_marks marks({&file_.handle()->pg_buf[found.start], found.length},
                          IS_JET3(file_.handle()));
    if (there < 0 || !marks.are_sound(columns_ever_)) {
        refuse_row();
    }
    for (MdbField& field : fields) {
        const bool has_value = marks.has_value(column_of(field).col_num);
        if (has_value && field.is_null != 0 && column_of(field).col_type != MDB_BOOL) {
            refuse(texts::tr("a row holds too few values"));
        }
        field.is_null = has_value ? 0 : 1;
    }
    if (!places_are_sound(found, fields)) {
        refuse_row();
    }
    QJsonArray row;
    for (const MdbField& field : fields) {
        row.append(value(column_of(field), field));
    }
    return row;
}

/// No value lies outside of the row, and no text among the values of fixed size.
bool jet_table::places_are_sound(const place& found, const std::vector<MdbField>& fields) const {
    const int end = found.start + static_cast<int>(found.length);
    int end_of_fixed = found.start;
    int start_of_texts = end;
    for (const MdbField& field : fields) {
        const MdbColumn& column = column_of(field);
        if (field.is_null != 0 || column.col_type == MDB_BOOL) {
            continue;
        }
        if (field.siz < 0 || field.start < found.start || field.start + field.siz > end) {
            return false;
        }
        if (column.is_fixed != 0) {
            end_of_fixed = std::max(end_of_fixed, field.start + field.siz);
        } else {
            start_of_texts = std::min(start_of_texts, field.start);
        }
    }
    return end_of_fixed <= start_of_texts;
}

QJsonValue jet_table::value(const MdbColumn& column, const MdbField& field) {
    if (column.col_type == MDB_BOOL) { // its value stands in place of the mark for Null
        return field.is_null == 0;
    }
    if (field.is_null != 0) {
        const bool has_text = column.is_fixed == 0 && field.siz > 0;
        return has_text ? unreadable() : QJsonValue();
    }
    const QByteArrayView bytes(&file_.handle()->pg_buf[field.start], field.siz);
    const auto text_or_not = [](const std::optional<QString>& text) {
        return text ? QJsonValue(*text) : unreadable();
    };
    switch (column.col_type) {
    case MDB_BYTE:
        return number_in<quint8>(bytes);
    case MDB_INT:
        return number_in<qint16>(bytes);
    case MDB_LONGINT:
        return number_in<qint32>(bytes);
    case MDB_FLOAT:
        return number_in<float>(bytes);
    case MDB_DOUBLE:
        return number_in<double>(bytes);
    case MDB_MONEY: {
        const QJsonValue ten_thousandths = number_in<qint64>(bytes);
        return ten_thousandths.isDouble() ? ten_thousandths.toDouble() / 10000 : ten_thousandths;
    }
    case MDB_DATETIME:
        return moment_in(bytes);
    case MDB_TEXT:
        return text_or_not(file_.text(bytes));
    case MDB_MEMO:
        return text_or_not(file_.long_text(bytes));
    default:
        return unreadable();
    }
}

} // namespace old_format
