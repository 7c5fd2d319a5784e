// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheets/customer_sheet.h"

#include "data/dialled_number.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/sheets/sheet.h"
#include "tools/texts.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// As plain as a Chinese keyboard's wide letters, digits and blanks may be written.
QString plain(const QString& text) {
    static const QRegularExpression invisible(u"\\p{Cf}"_s);
    return text.normalized(QString::NormalizationForm_KC).remove(invisible).trimmed();
}

/// A mobile number without what a spreadsheet adds to a number.
QString written_plainly(const QString& mobile) {
    static const QRegularExpression fraction(u"(?<=[0-9]{5})[.,]0{1,2}$"_s);
    return plain(mobile).remove(fraction);
}

/// A value without what spreadsheets mark a text with: an apostrophe before it, or ="…" around it.
QString unmarked(const QString& value) {
    if (value.startsWith(u'\'')) {
        return value.sliced(1);
    }
    constexpr qsizetype marks = 3;
    const bool is_formula =
        value.size() >= marks && value.startsWith(u"=\"") && value.endsWith(u'"');
    return is_formula ? value.sliced(2, value.size() - marks) : value;
}

/// Further headings that are understood, in lower case and without blanks.
const QHash<QString, QStringList>& other_headings() {
    static const QHash<QString, QStringList> headings{
        {u"cname"_s,
         {u"姓名"_s, u"名称"_s, u"名字"_s, u"客户"_s, u"客户姓名"_s, u"联系人"_s, u"name"_s,
          u"名稱"_s, u"客戶"_s, u"客戶名稱"_s, u"客戶姓名"_s, u"聯絡人"_s, u"聯繫人"_s}},
        {u"mobile"_s,
         {u"手机号"_s, u"手机号码"_s, u"移动电话"_s, u"mobilephone"_s, u"cellphone"_s, u"手機"_s,
          u"手機號"_s, u"手機號碼"_s, u"行動電話"_s, u"移動電話"_s}},
        {u"sex"_s, {u"gender"_s, u"性別"_s}},
        {u"birth"_s, {u"出生日期"_s, u"出生年月"_s, u"birthday"_s, u"dateofbirth"_s}},
        {u"phone"_s,
         {u"固定电话"_s, u"座机"_s, u"联系电话"_s, u"电话号码"_s, u"telephone"_s, u"tel"_s,
          u"電話"_s, u"固定電話"_s, u"座機"_s, u"聯絡電話"_s, u"聯繫電話"_s, u"電話號碼"_s}},
        {u"memo"_s,
         {u"备注说明"_s, u"说明"_s, u"note"_s, u"notes"_s, u"remark"_s, u"remarks"_s, u"備註"_s,
          u"備注"_s, u"說明"_s, u"備註說明"_s}},
    };
    return headings;
}

/// The column that a heading names, a remark in brackets aside; empty when none.
QString column_of(QString heading) {
    static const QRegularExpression ornament(uR"([\s:*_]|\(.*\))"_s);
    heading = plain(heading).toLower().remove(ornament);
    for (const auto& [column, written] : customer_columns()) {
        if (heading == column || heading == written ||
            other_headings().value(column).contains(heading)) {
            return column;
        }
    }
    return {};
}

class customer_reader {
public:
    customer_reader(const QString& path, const QStringList& headings);

    void take(const sheet_line& line);
    [[nodiscard]] const customer_sheet& sheet() const { return sheet_; }

private:
    void remark(const sheet_line& line, const QString& told);
    /// Tells of values that trouble the client, and takes out line breaks.
    void look_over(const sheet_line& line, customer_line& customer);
    /// Why a customer whose mobile number cannot be dialled is not taken.
    [[nodiscard]] static QString objection(const QString& written);

    QStringList columns_;     ///< what each field is; empty for one that is not used
    QSet<qsizetype> unnamed_; ///< those without a heading in which no value has been seen yet
    customer_sheet sheet_;
};

customer_reader::customer_reader(const QString& path, const QStringList& headings) {
    for (const QString& heading : headings) {
        const QString column = column_of(heading);
        if (!column.isEmpty() && columns_.contains(column)) {
            throw failure(
                texts::tr("%1: the headings %2 and %3 mean the same")
                    .arg(path, shown(headings.at(columns_.indexOf(column))), shown(heading)));
        }
        if (heading.isEmpty()) {
            unnamed_.insert(columns_.size());
        } else if (column.isEmpty()) {
            sheet_.remarks.append(texts::tr("column %1 is not used").arg(shown(heading)));
        }
        columns_.append(column);
    }
    if (!columns_.contains(u"mobile"_s)) {
        throw failure(
            texts::tr(
                "%1: no heading names the mobile number (see smsdb import-customers --help): %2")
                .arg(path, shown(headings.join(u' '))));
    }
}

void customer_reader::remark(const sheet_line& line, const QString& told) {
    sheet_.remarks.append(texts::tr("line %1: %2").arg(line.number).arg(told));
}

QString customer_reader::objection(const QString& written) {
    static const QRegularExpression rounded(uR"(^[0-9]([.,][0-9]+)?[eE][+]?[0-9]+$)"_s);
    if (written.isEmpty()) {
        return texts::tr("no mobile number");
    }
    return rounded.match(written).hasMatch()
               ? texts::tr(
                     "the spreadsheet has rounded the mobile number to %1; make its column text")
                     .arg(shown(written))
               : texts::tr("no mobile number of 3 to 20 digits but %1").arg(shown(written));
}

void customer_reader::look_over(const sheet_line& line, customer_line& customer) {
    static const QRegularExpression line_break(u"[\\r\\n]"_s);
    for (auto value = customer.values.begin(); value != customer.values.end(); ++value) {
        if (value->contains(u'\'')) {
            remark(line, texts::tr("the client cannot save a text with an apostrophe: %1")
                             .arg(shown(*value)));
        }
        if (value.key() != u"memo" && value->contains(line_break)) {
            remark(line, texts::tr("line breaks become blanks: %1").arg(shown(*value)));
            *value = value->simplified();
        }
    }
}

void customer_reader::take(const sheet_line& line) {
    customer_line customer{line.number, {}};
    for (qsizetype i = 0; i < line.fields.size(); ++i) {
        QString value = unmarked(line.fields.at(i));
        if (i >= columns_.size() && !value.isEmpty()) {
            remark(line, texts::tr("left out: it has more fields than there are headings"));
            return;
        }
        const QString column = columns_.value(i);
        value = column == u"mobile" ? written_plainly(value) : value;
        if (!value.isEmpty() && unnamed_.remove(i)) {
            remark(line, texts::tr("column %1 is not used: it has no heading").arg(i + 1));
        }
        if (!column.isEmpty() && !value.isEmpty()) {
            customer.values.insert(column, value);
        }
    }
    const QString written = customer.values.value(u"mobile"_s);
    const QString dialled = dialled_number(written);
    if (dialled.isEmpty()) {
        remark(line, texts::tr("left out: %1").arg(objection(written)));
        return;
    }
    customer.values.insert(u"mobile"_s, dialled);
    look_over(line, customer);
    sheet_.customers.append(customer);
}

} // namespace

const QList<std::pair<QString, QString>>& customer_columns() {
    static const QList<std::pair<QString, QString>> columns{
        {u"cname"_s, u"客户名称"_s}, {u"mobile"_s, u"手机"_s}, {u"sex"_s, u"性别"_s},
        {u"birth"_s, u"生日"_s},     {u"phone"_s, u"电话"_s},  {u"memo"_s, u"备注"_s}};
    return columns;
}

customer_sheet read_customers(const QByteArray& content, const QString& path,
                              const QString& charset) {
    const auto [lines, is_guessed] = read_sheet(content, path, charset);
    customer_reader reader(path, lines.value(0).fields);
    for (const sheet_line& line : lines.sliced(qMin<qsizetype>(1, lines.size()))) {
        reader.take(line);
    }
    customer_sheet read = reader.sheet();
    read.is_guessed = is_guessed;
    return read;
}
