// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheet.h"

#include "tools/command.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <memory>
#include <optional>

#include <csv.h>

using namespace Qt::StringLiterals;

namespace {

/// Nothing when not all of it can be read, its last character too.
std::optional<QString> decoded(QStringDecoder decoder, const QByteArray& content) {
    const QString text = decoder.decode(content);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

std::optional<QString> from_utf8(const QByteArray& content) {
    return decoded(QStringDecoder(QStringConverter::Utf8, QStringDecoder::Flag::Stateless),
                   content);
}

/// The first line that is not UTF-8 where others are; 0 when there is no such mixture. One line in
/// many may look like UTF-8 by chance.
qint64 line_of_other_encoding(const QByteArray& content) {
    constexpr qint64 many = 100;
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    qint64 line = 0;
    qint64 first_other = 0;
    qint64 others = 0;
    qint64 in_utf8 = 0;
    for (const QByteArray& bytes : content.split('\n')) {
        ++line;
        const auto text = from_utf8(bytes);
        if (text) {
            in_utf8 += text->contains(chinese) ? 1 : 0;
        } else {
            ++others;
            first_other = first_other == 0 ? line : first_other;
        }
    }
    return others <= in_utf8 * many ? first_other : 0;
}

/// The text of a file. Throws failure when it is none.
QString text_of(const QString& path, const QByteArray& content) {
    const auto marked = QStringConverter::encodingForData(content);
    std::optional<QString> text =
        marked ? decoded(QStringDecoder(*marked, QStringDecoder::Flag::Stateless), content)
               : from_utf8(content);
    const qint64 line = text ? 0 : line_of_other_encoding(content);
    if (line != 0) {
        throw failure(
            u"%1: line %2 is not in UTF-8 as others are; save the file anew, all in one encoding"_s
                .arg(path, QString::number(line)));
    }
    if (!text && !marked) {
        text = decoded(QStringDecoder("GB18030", QStringDecoder::Flag::Stateless), content);
    }
    if (!text || text->contains(QChar::Null)) {
        throw failure(u"%1: is no text in UTF-8, UTF-16 or GB18030; save it as CSV"_s.arg(path));
    }
    return *text;
}

/// Some name the separator before the first line, and write a number as a formula so that it stays
/// a text.
QString without_hints(QString text) {
    static const QRegularExpression separator(u"^sep=[,;\\t](?=[\\r\\n])"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression formula(
        uR"re((^|[,;\t\r\n])="([^"\r\n]*)"(?=[,;\t\r\n]|$))re"_s);
    return text.remove(separator).replace(formula, uR"(\1"\2")"_s);
}

unsigned char separator_of(const QString& text) {
    static const QRegularExpression line_end(u"[\\r\\n]"_s);
    const QString first_line = text.trimmed().section(line_end, 0, 0);
    const auto rarer = [&first_line](QChar a, QChar b) {
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
    if (file.size() > largest) {
        throw failure(u"%1: is too large for a list of customers"_s.arg(path));
    }
    const QString text = without_hints(text_of(path, file.read(largest)));
    if (text.trimmed().isEmpty()) {
        throw failure(u"%1: is empty"_s.arg(path));
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
