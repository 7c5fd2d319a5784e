// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheets/commands.h"

#include "platform/csv.h"
#include "tools/console.h"
#include "tools/new_file.h"
#include "tools/office_database.h"
#include "tools/sheets/customer_sheet.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb export-customers FILE CUSTOMERS.csv

Writes all customers of the database FILE to a new file for a spreadsheet, also while clients are working
in it: name, mobile, sex, birthday, telephone and remark, in the order of their numbers. CUSTOMERS.csv is
UTF-8 with a byte order mark, readable by its owner alone. It must not exist.

A text that begins with = + - @ (wide ones too), a tab, a line break or an apostrophe gets an apostrophe
before it, so that no spreadsheet takes it for a formula; smsdb import-customers takes it away again.

Exit status: 0 written; 2 not written.
)");
}

int run(const QCommandLineParser& arguments) {
    const QString file = arguments.positionalArguments().at(0);
    const QString place = arguments.positionalArguments().at(1);
    const auto database = open_office(file, office_use::reading);
    const QList<QStringList> customers = database->texts(
        u"SELECT cname, mobile, sex, birth, phone, memo FROM customer ORDER BY cid"_s);
    QStringList headings;
    for (const auto& column : customer_columns()) {
        headings.append(column.second);
    }
    QByteArray content = csv::byte_order_mark.toByteArray() + csv::line(headings);
    for (const QStringList& customer : customers) {
        content += csv::line(customer);
    }
    new_file made(place);
    made.write(content);
    conclude(
        texts::tr("wrote %1 customer(s) to %2\n").arg(QString::number(customers.size()), place),
        [&made] { made.put_in_place(); });
    return exit_status::clean;
}

} // namespace

command export_customers_command() {
    return {u"export-customers"_s,
            texts::tr("write the customers to a file for a spreadsheet"),
            help(),
            2,
            {},
            run};
}
