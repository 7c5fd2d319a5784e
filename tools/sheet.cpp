// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheet.h"

#include "tools/command.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <memory>
#include <optional>

#include <csv.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> decoded(QStringDecoder decoder, const QByteArray& content) {
    const QString text = decoder.decode(content);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

QString text_of(const QByteArray& content) {
    if (const auto marked = QStringConverter::encodingForData(content)) {
        return decoded(QStringDecoder(*marked), content).value_or(QString());
    }
    const auto text = decoded(QStringDecoder(QStringConverter::Utf8), content);
    return text ? *text : decoded(QStringDecoder("GB18030"), content).value_or(QString());
}

unsigned char separator_of(const QString& text) {
    const QStringView first_line = QStringView(text).left(text.indexOf(u'\n'));
    const auto rarer = [first_line](QChar a, QChar b) {
        return first_line.count(a) < first_line.count(b);
    };
    const auto separators = {u',', u';', u'\t'};
    return static_cast<unsigned char>(
        *std::max_element(separators.begin(), separators.end(), rarer));
}

/// What the parser finds, put together into lines.
struct collector {
    QList<sheet_line> lines;
    sheet_line current;
    qint64 line = 1;
    bool after_return = false;

    void take_field(QByteArrayView bytes) {
        const QString field = QString::fromUtf8(bytes);
        if (current.fields.isEmpty()) {
            current.number = line;
        }
        current.fields.append(field);
        line += field.count(u'\n') + field.count(u'\r') - field.count(u"\r\n"_s);
        after_return = false;
    }

    void take_end(int end) {
        if (!current.fields.join(QString()).isEmpty()) {
            lines.append(current);
        }
        current.fields.clear();
        line += end == '\n' && after_return ? 0 : 1;
        after_return = end == '\r';
    }
};

/// For libcsv: no character is a blank to be cut off at the ends.
int no_blank(unsigned char /*character*/) {
    return 0;
}

} // namespace

QList<sheet_line> read_sheet(const QString& path) {
    constexpr qint64 largest = 0x4000000; // no list of 32,767 customers comes near
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw failure(u"%1: cannot be opened: %2"_s.arg(path, file.errorString()));
    }
    const QString text = file.size() <= largest ? text_of(file.read(largest)) : QString();
    if (text.isEmpty() || text.contains(QChar::Null)) {
        throw failure(u"%1: is empty or no text in UTF-8 or GB18030"_s.arg(path));
    }
    csv_parser parser{};
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
    const std::unique_ptr<csv_parser, void (*)(csv_parser*)> freed(&parser, csv_free);
    csv_set_delim(&parser, separator_of(text));
    csv_set_space_func(&parser, no_blank);
    const auto on_field = [](void* bytes, size_t length, void* into) {
        static_cast<collector*>(into)->take_field(
            {static_cast<const char*>(bytes), static_cast<qsizetype>(length)});
    };
    const auto on_end = [](int end, void* into) { static_cast<collector*>(into)->take_end(end); };
    collector found;
    const QByteArray bytes = text.toUtf8();
    const auto length = static_cast<size_t>(bytes.size());
    if (csv_parse(&parser, bytes.constData(), length, on_field, on_end, &found) != length ||
        csv_fini(&parser, on_field, on_end, &found) != 0) {
        throw failure(
            u"%1: line %2: a quotation mark stands where none belongs, or one is missing"_s.arg(
                path, QString::number(found.line)));
    }
    return found.lines;
}
