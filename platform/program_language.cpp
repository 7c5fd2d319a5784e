// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/program_language.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

// Whether Chinese comes before English among the languages that the user wants. One Chinese serves
// every country: who reads another one reads this sooner than English.
bool chinese_is_wanted() {
    const QLocale user = QLocale::system();
    if (user.language() == QLocale::C) {
        return false; // a list of languages counts only where a locale is set
    }
    for (const QString& language : user.uiLanguages()) {
        switch (QLocale(language).language()) {
        case QLocale::Chinese:
        case QLocale::Cantonese:
            return true;
        case QLocale::English:
            return false;
        default:
            break;
        }
    }
    return false;
}

} // namespace

void speak_users_language(const QString& program) {
    if (!chinese_is_wanted()) {
        return;
    }
    // The toolkit's own texts come second: where both know one, the last installed is asked first.
    for (const QString& texts : {u"qtbase"_s, program}) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(u":/translations/%1_zh_CN.qm"_s.arg(texts))) {
            QCoreApplication::installTranslator(translator);
        }
    }
}
