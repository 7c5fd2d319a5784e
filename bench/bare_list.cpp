// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bare_list.h"

#include "bench/measure.h"
#include "bench/paint_watch.h"

void bare_model::load() {
    beginResetModel();
    cells_.clear();
    const auto rows =
        database_.prepare("SELECT cid, birth, cname, sex, mobile, phone, memo From customer");
    while (database_.step(rows)) {
        for (int column = 0; column < columns; ++column) {
            cells_.emplace_back(
                reinterpret_cast<const char*>(sqlite3_column_text(rows.get(), column)),
                static_cast<size_t>(sqlite3_column_bytes(rows.get(), column)));
        }
    }
    endResetModel();
}

int bare_model::rowCount(const QModelIndex& /*parent*/) const {
    return static_cast<int>(cells_.size()) / columns;
}

int bare_model::columnCount(const QModelIndex& /*parent*/) const {
    return columns;
}

QVariant bare_model::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    return QString::fromStdString(
        cells_.at(static_cast<size_t>(index.row() * columns + index.column())));
}

double bare_list::open() {
    view_.reset();
    paint_watch watch("QTableView");
    return milliseconds([&] {
        model_.load();
        view_ = std::make_unique<QTableView>();
        view_->setModel(&model_);
        view_->resize(1000, 700);
        view_->show();
        watch.wait();
    });
}

double bare_list::refresh() {
    paint_watch watch("QTableView");
    return milliseconds([&] {
        model_.load();
        watch.wait();
    });
}
