// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/terminal.h"

#include <QByteArray>
#include <QString>

QByteArray terminal_text(const QString& text) {
    return text.toLocal8Bit();
}
