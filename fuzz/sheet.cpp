// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheets/sheet.h"
#include "data/dialled_number.h"
#include "fuzz/target.h"
#include "platform/csv.h"
#include "tools/command.h"
#include "tools/sheets/customer_sheet.h"

using namespace Qt::StringLiterals;

// Whatever a spreadsheet has written is read or refused with a reason, and what was read and is
// written again is read the same.

namespace {

void check_again(const QList<sheet_line>& lines) {
    QByteArray content = csv::byte_order_mark.toByteArray() + csv::line({u"heading"_s});
    for (const sheet_line& line : lines) {
        content += csv::line(line.fields);
    }
    const QList<sheet_line> again = read_sheet(content, u"again"_s, {}).lines;
    expect(again.size() == lines.size() + 1, "every line comes back");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringList& before = lines.at(i).fields;
        const QStringList& after = again.at(i + 1).fields;
        expect(after.size() == before.size(), "every field comes back");
        for (qsizetype field = 0; field < before.size(); ++field) {
            expect(after.at(field) == before.at(field) ||
                       after.at(field) == u'\'' + before.at(field),
                   "a field is what it was, or is marked as a text");
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray content = view_input(data, size);
    try {
        const QList<sheet_line> lines = read_sheet(content, u"sheet"_s, {}).lines;
        qint64 last = 0;
        for (const sheet_line& line : lines) {
            expect(line.number > last && line.number <= content.size() + 1,
                   "lines have their numbers");
            last = line.number;
        }
        check_again(lines);
        for (const customer_line& customer : read_customers(content, u"sheet"_s, {}).customers) {
            const QString mobile = customer.values.value(u"mobile"_s);
            expect(!mobile.isEmpty() && dialled_number(mobile) == mobile,
                   "a number can be dialled");
        }
    } catch (const failure&) { // NOLINT(bugprone-empty-catch): refused, as it may be
    }
    return 0;
}
