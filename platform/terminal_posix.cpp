// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/terminal.h"

#include <QByteArray>
#include <QString>
#include <QStringConverter>

#include <clocale>

#include <langinfo.h>

namespace {

// By the user's settings, not by the locale in force: Qt may have put one with UTF-8 there.
QByteArray terminal_encoding() {
    const locale_t user = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (user == nullptr) {
        return {}; // one that is not installed
    }
    QByteArray name = nl_langinfo_l(CODESET, user);
    freelocale(user);
    return name;
}

} // namespace

QByteArray terminal_text(const QString& text) {
    static const QByteArray encoding = terminal_encoding();
    QStringEncoder encode(encoding.constData());
    // Without a locale nothing is known but ASCII, and most terminals show UTF-8 all the same.
    if (!encode.isValid() || encoding == "ANSI_X3.4-1968") {
        return text.toUtf8();
    }
    return encode(text);
}
