// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/old_format/jet_file.h"

#include <QJsonArray>
#include <QSet>
#include <QStringList>

#include <functional>
#include <span>
#include <vector>

namespace old_format {

/// Where a table of a Jet file is found.
struct table_place {
    QString name;
    quint32 page = 0; ///< where its definition stands
};

/// One table of a Jet file: its columns, and its rows as they stand.
class jet_table {
public:
    /// Reads the definition. Throws damaged.
    jet_table(jet_file& file, const table_place& which);

    [[nodiscard]] QStringList columns() const;

    /// Every row once: Null, truth values, numbers and texts, one a column; a moment is a text
    /// "yyyy/mm/dd", the time of day behind it unless that is midnight; what cannot be read is an
    /// empty object. Throws damaged, also when there are not as many rows as there should be.
    void for_each_row(const std::function<void(const QJsonArray&)>& take);

private:
    /// A row on the page that is in the handle's buffer.
    struct place {
        int start = 0;
        size_t length = 0;
        bool has_moved_here = false;
        bool has_moved_away = false;
    };

    [[nodiscard]] bool columns_are_sound();
    void for_each_place(const std::function<void(int row, const place&)>& take);
    [[nodiscard]] QSet<quint32> moved_rows();
    [[nodiscard]] const MdbColumn& column_of(const MdbField& field) const;
    [[nodiscard]] QJsonArray row_at(const place& found);
    [[nodiscard]] bool places_are_sound(const place& found,
                                        const std::vector<MdbField>& fields) const;
    [[nodiscard]] QJsonValue value(const MdbColumn& column, const MdbField& field);
    [[nodiscard]] std::span<MdbColumn* const> column_list() const;
    [[noreturn]] void refuse(const QString& what) const;

    struct deleter {
        void operator()(MdbTableDef* table) const noexcept { mdb_free_tabledef(table); }
    };
    jet_file& file_;
    std::unique_ptr<MdbCatalogEntry> entry_;
    std::unique_ptr<MdbTableDef, deleter> table_;
    int columns_ever_ = 0; ///< how many columns have had a number, deleted ones too
};

} // namespace old_format
