// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/gsm_alphabet.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

qsizetype gsm_units(char32_t character) {
    static const QString basic =
        u"@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿abcdefghijklmnopqrstuvwxyzäöñüà"_s;
    static const QString escaped = u"\f^{}\\[~]|€"_s;
    if (QChar::requiresSurrogates(character)) {
        return 0;
    }
    const QChar letter(static_cast<char16_t>(character));
    return basic.contains(letter) ? 1 : escaped.contains(letter) ? 2 : 0;
}

bool is_gsm_text(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return std::all_of(characters.begin(), characters.end(),
                       [](uint character) { return gsm_units(character) > 0; });
}
