// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>

/// Shows the wait cursor while it lives.
class wait_cursor {
public:
    wait_cursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~wait_cursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(wait_cursor)
};
