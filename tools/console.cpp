// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/console.h"

#include "platform/data_error.h"
#include "platform/terminal.h"
#include "tools/command.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

void print(const QString& text) {
    std::fputs(terminal_text(text).constData(), stdout);
}

void flush_output() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw failure(u"standard output cannot be written"_s);
    }
}

void conclude(const QString& report, const std::function<void()>& commit) {
    print(report);
    flush_output();
    try {
        commit();
    } catch (const std::exception&) {
        complain(u"what is told above is not done:"_s);
        throw;
    }
}

void complain(const QString& what) {
    std::fputs(terminal_text(u"smsdb: "_s + what + u'\n').constData(), stderr);
}

QString describe(const DataError& error, const QString& file) {
    switch (error.kind()) {
    case DataError::Kind::missing_file:
        return u"%1: there is no such file"_s.arg(file);
    case DataError::Kind::cannot_open:
        return u"%1: cannot be opened: %2"_s.arg(file, error.detail());
    case DataError::Kind::not_a_database:
        return u"%1: is no database of this system or is damaged: %2"_s.arg(file, error.detail());
    case DataError::Kind::old_format:
        return u"%1: is a database of the old format, which has to be imported first"_s.arg(file);
    case DataError::Kind::newer_version:
        return u"%1: was made by a newer version of this system"_s.arg(file);
    case DataError::Kind::locked:
        return u"%1: is in use by another program"_s.arg(file);
    case DataError::Kind::disk:
        return u"%1: reading or writing failed: %2"_s.arg(file, error.detail());
    default:
        return u"%1: %2"_s.arg(file, error.detail());
    }
}

void refuse_charset(const QString& charset) {
    if (!charset.isEmpty() && !QStringDecoder(charset.toLatin1().constData()).isValid()) {
        throw failure(u"--charset %1: unknown"_s.arg(charset));
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

QString harmless(QString text) {
    const auto steers = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(text.begin(), text.end(), steers, u'?');
    return text;
}
