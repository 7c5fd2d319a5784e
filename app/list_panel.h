// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QPointer>

class QMdiArea;
class frmdatagrid;

/// The status bar's first panel: what the list in front tells about its rows; empty without a list.
class list_panel : public QLabel {
    Q_OBJECT

public:
    explicit list_panel(const QMdiArea& windows, QWidget* parent = nullptr);

private:
    void watch();
    void tell();

    const QMdiArea& windows_;
    QPointer<frmdatagrid> list_;
};
