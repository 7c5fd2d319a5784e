// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "bench/plain_database.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <memory>
#include <vector>

/// The customers as plain strings.
class bare_model : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr int columns = 7;

    explicit bare_model(const std::string& path) : database_(path) {}

    /// Reads all rows.
    void load();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    plain_database database_;
    std::vector<std::string> cells_;
};

/// The twin of a list window: a table view that shows the customers, nothing around it.
class bare_list {
public:
    explicit bare_list(const std::string& path) : model_(path) {}

    // Milliseconds from the command to the paint.
    [[nodiscard]] double open();
    [[nodiscard]] double refresh();

private:
    bare_model model_;
    std::unique_ptr<QTableView> view_;
};
