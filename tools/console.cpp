// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/console.h"

#include "platform/data_error.h"
#include "platform/terminal.h"
#include "tools/command.h"
#include "tools/texts.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

void print(const QString& text) {
    std::fputs(terminal_text(text).constData(), stdout);
}

void flush_output() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw failure(texts::tr("standard output cannot be written"));
    }
}

void conclude(const QString& report, const std::function<void()>& commit) {
    print(report);
    flush_output();
    try {
        commit();
    } catch (const std::exception&) {
        complain(texts::tr("what is told above is not done:"));
        throw;
    }
}

void complain(const QString& what) {
    std::fputs(terminal_text(u"smsdb: "_s + what + u'\n').constData(), stderr);
}

QString describe(const DataError& error, const QString& file) {
    switch (error.kind()) {
    case DataError::Kind::missing_file:
        return texts::tr("%1: there is no such file").arg(file);
    case DataError::Kind::cannot_open:
        return texts::tr("%1: cannot be opened: %2").arg(file, error.detail());
    case DataError::Kind::not_a_database:
        return texts::tr("%1: is no database of this system or is damaged: %2")
            .arg(file, error.detail());
    case DataError::Kind::old_format:
        return texts::tr("%1: is a database of the old format, which has to be imported first")
            .arg(file);
    case DataError::Kind::newer_version:
        return texts::tr("%1: was made by a newer version of this system").arg(file);
    case DataError::Kind::locked:
        return texts::tr("%1: is in use by another program").arg(file);
    case DataError::Kind::disk:
        return texts::tr("%1: reading or writing failed: %2").arg(file, error.detail());
    default:
        return u"%1: %2"_s.arg(file, error.detail());
    }
}

void refuse_charset(const QString& charset) {
    if (!charset.isEmpty() && !QStringDecoder(charset.toLatin1().constData()).isValid()) {
        throw failure(texts::tr("--charset %1: unknown").arg(charset));
    }
}

QString some_of(const QStringList& items) {
    constexpr qsizetype enough = 8;
    const QString shown = items.first(qMin(enough, items.size())).join(u", "_s);
    return items.size() > enough ? shown + u", …"_s : shown;
}

QString shown(const QString& text) {
    constexpr qsizetype longest = 40;
    return u"\"%1\""_s.arg(harmless(text.size() > longest ? text.left(longest) + u'…' : text));
}

QString padded(const QString& text, int width) {
    constexpr char16_t first_wide = 0x1100;
    const auto wide = std::count_if(text.cbegin(), text.cend(),
                                    [](QChar c) { return c.unicode() >= first_wide; });
    const auto less = static_cast<int>(wide);
    return u"%1"_s.arg(text, width < 0 ? qMin(width + less, 0) : qMax(width - less, 0));
}

QString harmless(QString text) {
    const auto steers = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(text.begin(), text.end(), steers, u'?');
    return text;
}
