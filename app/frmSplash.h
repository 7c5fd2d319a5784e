// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// The picture shown while the main window comes up.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    explicit frmSplash(QWidget* owner);
};
