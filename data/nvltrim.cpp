// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/nvltrim.h"

QString nvltrim(const QVariant& value) {
    // Blanks only: a line break at the end of a remark belongs to it.
    const QString text = value.toString();
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ') {
        ++first;
    }
    while (last > first && text[last - 1] == u' ') {
        --last;
    }
    return text.sliced(first, last - first);
}
