// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheets/sheet.h"

#include "tools/command.h"
#include "tools/texts.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <array>
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

/// The text of a file, and whether its charset had to be guessed. Throws failure when it is none.
std::pair<QString, bool> text_of(const QByteArray& content, const QString& path,
                                 const QString& charset) {
    constexpr auto whole = QStringDecoder::Flag::Stateless;
    const auto marked = QStringConverter::encodingForData(content);
    std::optional<QString> text =
        marked ? decoded(QStringDecoder(*marked, whole), content)
        : !charset.isEmpty()
            ? decoded(QStringDecoder(charset.toLatin1().constData(), whole), content)
            : from_utf8(content);
    const bool is_known = text || marked || !charset.isEmpty();
    const qint64 line = is_known ? 0 : line_of_other_encoding(content);
    if (line != 0) {
        throw failure(
            texts::tr(
                "%1: line %2 is not in UTF-8 as others are; save the file anew, all in one encoding")
                .arg(path, QString::number(line)));
    }
    if (!is_known) {
        text = decoded(QStringDecoder("GB18030", whole), content);
    }
    if (!text || text->contains(QChar::Null)) {
        throw failure(
            texts::tr("%1: is no text in %2; save it as CSV")
                .arg(path, charset.isEmpty() ? texts::tr("UTF-8, UTF-16 or GB18030") : charset));
    }
    return {*text, !is_known};
}

/// Some programs name the separator before the first line.
QString without_hint(QString text) {
    static const QRegularExpression separator(u"^sep=[,;\\t](?=[\\r\\n])"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    return text.remove(separator);
}

/// Some programs write a number as a formula, ="…", so that it stays a text. The sign of equality
/// goes where such a field begins; what stands between quotation marks is left alone.
QString without_formulas(const QString& text, char separator) {
    const QRegularExpression formula(
        u"=\"[^\"\\r\\n]*\"(?=[\\r\\n\\x%1]|$)"_s.arg(int{separator}, 2, 16, QChar(u'0')));
    QString plain;
    plain.reserve(text.size());
    bool is_quoted = false;
    bool begins_field = true;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (begins_field && c == u'=' &&
            formula
                .match(text, at, QRegularExpression::NormalMatch,
                       QRegularExpression::AnchorAtOffsetMatchOption)
                .hasMatch()) {
            begins_field = false;
            continue;
        }
        is_quoted = is_quoted != (c == u'"');
        begins_field = !is_quoted && (c == QLatin1Char(separator) || c == u'\n' || c == u'\r');
        plain += c;
    }
    return plain;
}

/// The one that the first line has most of, quoted parts aside.
char separator_of(const QString& text) {
    constexpr std::array separators{',', ';', '\t'};
    std::array<int, separators.size()> counts{};
    bool is_quoted = false;
    for (const QChar c : text.trimmed()) {
        is_quoted = is_quoted != (c == u'"');
        if (!is_quoted && (c == u'\n' || c == u'\r')) {
            break;
        }
        for (std::size_t i = 0; !is_quoted && i < separators.size(); ++i) {
            counts.at(i) += c == QLatin1Char(separators.at(i)) ? 1 : 0;
        }
    }
    const auto* most = std::max_element(counts.begin(), counts.end());
    return separators.at(static_cast<std::size_t>(most - counts.begin()));
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

sheet read_sheet(const QByteArray& content, const QString& path, const QString& charset) {
    const auto [whole, is_guessed] = text_of(content, path, charset);
    const QString hinted = without_hint(whole);
    if (hinted.trimmed().isEmpty()) {
        throw failure(texts::tr("%1: is empty").arg(path));
    }
    const char separator = separator_of(hinted);
    const QByteArray bytes = without_formulas(hinted, separator).toUtf8();
    csv_parser parser{};
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
    const std::unique_ptr<csv_parser, void (*)(csv_parser*)> freed(&parser, csv_free);
    csv_set_delim(&parser, static_cast<unsigned char>(separator));
    csv_set_space_func(&parser, no_blank);
    const auto on_field = [](void* field, size_t length, void* into) {
        static_cast<collector*>(into)->take_field(
            {static_cast<const char*>(field), static_cast<qsizetype>(length)});
    };
    const auto on_end = [](int end, void* into) { static_cast<collector*>(into)->take_end(end); };
    collector found;
    const auto length = static_cast<size_t>(bytes.size());
    if (csv_parse(&parser, bytes.constData(), length, on_field, on_end, &found) != length ||
        csv_fini(&parser, on_field, on_end, &found) != 0) {
        throw failure(
            texts::tr("%1: line %2: a quotation mark stands where none belongs, or one is missing")
                .arg(path, QString::number(found.line)));
    }
    return {found.lines, is_guessed};
}
