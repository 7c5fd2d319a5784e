// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/sheets/commands.h"

#include "data/dialled_number.h"
#include "platform/data_error.h"
#include "platform/database/bound_statement.h"
#include "platform/database/transaction.h"
#include "tools/console.h"
#include "tools/inspection.h"
#include "tools/office_database.h"
#include "tools/sheets/customer_sheet.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QFile>
#include <QHash>
#include <QSet>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(
        R"(Usage: smsdb import-customers [--dry-run] [--class NAME] [--duplicates WAY] [--charset NAME]
                              CUSTOMERS.csv FILE

Puts the customers of a spreadsheet into the database FILE, all of them at once, also while clients are
working in it. Make a backup first (smsdb backup).

CUSTOMERS.csv is what a spreadsheet saves as CSV or Unicode text: UTF-8, UTF-16 or GB18030; commas,
semicolons or tabs. Its first line names the columns, in any order; only the mobile number has to be there:

  客户名称 姓名 联系人 name      手机 手机号 手机号码 mobile     性别 sex gender
  生日 出生日期 birth birthday   电话 座机 联系电话 phone tel    备注 说明 memo notes

or the same in traditional characters. A mobile number is stored as it is dialled: without blanks, hyphens
and brackets, with plain digits, without +86, 0086 or 86 before it; another country's keeps its +.

  --dry-run          tells what would happen, and changes nothing
  --class NAME       puts the customers that are added or updated into this class; makes it if there is none
  --duplicates WAY   what becomes of a mobile number that a customer has already, or an earlier line:
                     skip it (the default), update that customer (empty fields leave what is there, and the
                     number stays as it is; of several with that number the first), or add one more. It is
                     the same number however it is written.
  --charset NAME     what CUSTOMERS.csv is written in, such as Big5 or ISO-8859-1. What is neither UTF-8 nor
                     UTF-16 is taken for GB18030 otherwise, and that is told.

Reported, a line each: lines left out because their mobile number is none of 3 to 20 digits, columns not
used, duplicates, and texts with an apostrophe. The client cannot save a customer with an apostrophe until
it is taken out. An apostrophe at the very beginning of a field is the mark of a text and does not count,
nor does ="…" around one.

Exit status: 0 every line is in; 1 done, with a report; 2 nothing done.
)");
}

enum class duplicates { skip, add, update };

/// One import into a database, within its transaction.
class customer_importer {
public:
    customer_importer(physical_database& database, duplicates way, const QString& into_class);

    void take(const customer_line& line);
    [[nodiscard]] const QStringList& remarks() const { return remarks_; }
    [[nodiscard]] QString summary() const;

private:
    [[nodiscard]] qint64 add(const customer_line& line);
    void update(qint64 cid, const customer_line& line);
    void put_into_class(qint64 cid);
    /// The number that the row just inserted has got. Throws failure when the screens cannot hold
    /// it.
    [[nodiscard]] qint64 given_number(const QString& table);

    physical_database& database_;
    duplicates way_;
    qint64 class_ = 0;                 ///< 0 for none
    QSet<qint64> members_;             ///< the customers in that class
    QHash<QString, qint64> by_mobile_; ///< as it is dialled
    QHash<QString, qint64> given_;     ///< how many numbers of each table
    QStringList remarks_;
    qint64 added_ = 0;
    qint64 updated_ = 0;
    qint64 skipped_ = 0;
};

customer_importer::customer_importer(physical_database& database, duplicates way,
                                     const QString& into_class)
    : database_(database), way_(way) {
    for (const QStringList& row : database.texts(
             u"SELECT mobile, cid FROM customer WHERE mobile > '' ORDER BY cid DESC"_s)) {
        by_mobile_.insert(dialled_number(row.at(0)), row.at(1).toLongLong());
    }
    if (into_class.isEmpty()) {
        return;
    }
    class_ =
        database.number(u"SELECT min(ccid) FROM cusclass WHERE cname = '%1'"_s.arg(into_class));
    if (class_ == 0) {
        bound_statement(database, u"INSERT INTO cusclass (cname) VALUES (?)"_s).run({into_class});
        class_ = given_number(u"cusclass"_s);
        remarks_.append(texts::tr("class %1 is new").arg(shown(into_class)));
    }
    for (const QString& cid :
         database.column(u"SELECT cid FROM cgroup WHERE ccid = %1"_s.arg(class_))) {
        members_.insert(cid.toLongLong());
    }
}

qint64 customer_importer::given_number(const QString& table) {
    const qint64 number = database_.last_key();
    if (number > last_number) {
        throw failure(
            texts::tr(
                "the numbers of %1 run out at %2: no more than %3 new one(s) fit; nothing is imported")
                .arg(table)
                .arg(last_number)
                .arg(given_.value(table)));
    }
    ++given_[table];
    return number;
}

qint64 customer_importer::add(const customer_line& line) {
    QStringList columns;
    QVariantList values;
    for (const auto& [column, heading] : customer_columns()) {
        columns.append(column);
        values.append(line.values.value(column, u""_s)); // as the client stores an empty box
    }
    bound_statement(database_,
                    u"INSERT INTO customer (%1) VALUES (?,?,?,?,?,?)"_s.arg(columns.join(u',')))
        .run(values);
    ++added_;
    return given_number(u"customer"_s);
}

void customer_importer::update(qint64 cid, const customer_line& line) {
    QStringList changes;
    QVariantList values;
    for (auto value = line.values.cbegin(); value != line.values.cend(); ++value) {
        if (value.key() != u"mobile") { // the same number, as somebody has written it
            changes.append(value.key() + u"=?"_s);
            values.append(*value);
        }
    }
    values.append(cid);
    if (!changes.isEmpty()) {
        bound_statement(database_, u"UPDATE customer SET %1 WHERE cid=?"_s.arg(changes.join(u',')))
            .run(values);
    }
    ++updated_;
}

void customer_importer::put_into_class(qint64 cid) {
    if (class_ != 0 && !members_.contains(cid)) {
        bound_statement(database_, u"INSERT INTO cgroup (cid, ccid) VALUES (?,?)"_s)
            .run({cid, class_});
        static_cast<void>(given_number(u"cgroup"_s));
        members_.insert(cid);
    }
}

void customer_importer::take(const customer_line& line) {
    const QString mobile = line.values.value(u"mobile"_s);
    const qint64 known = by_mobile_.value(mobile);
    if (known != 0) {
        const QString done = way_ == duplicates::skip     ? texts::tr("skipped")
                             : way_ == duplicates::update ? texts::tr("updated")
                                                          : texts::tr("added again");
        remarks_.append(
            texts::tr("line %1: %2: customer %3 has the mobile number %4")
                .arg(QString::number(line.number), done, QString::number(known), shown(mobile)));
    }
    if (known != 0 && way_ == duplicates::skip) {
        ++skipped_;
        return;
    }
    qint64 cid = known;
    if (known != 0 && way_ == duplicates::update) {
        update(known, line);
    } else {
        cid = add(line);
    }
    by_mobile_.insert(mobile, known != 0 ? known : cid);
    put_into_class(cid);
}

QString customer_importer::summary() const {
    return texts::tr("%1 customer(s) added, %2 updated, %3 skipped\n")
        .arg(added_)
        .arg(updated_)
        .arg(skipped_);
}

duplicates way_of(const QString& name) {
    if (name == u"add") {
        return duplicates::add;
    }
    if (name != u"skip" && name != u"update") {
        throw failure(texts::tr("--duplicates %1: expected skip, update or add").arg(name));
    }
    return name == u"skip" ? duplicates::skip : duplicates::update;
}

QString class_of(const QCommandLineParser& arguments) {
    constexpr qsizetype longest = 50; // as the client's box has it
    QString name = arguments.value(u"class"_s).trimmed();
    if (arguments.isSet(u"class"_s) &&
        (name.isEmpty() || name.size() > longest || name.contains(u'\''))) {
        throw failure(
            texts::tr("--class: a class has a name of 1 to %1 characters, without an apostrophe")
                .arg(longest));
    }
    return name;
}

/// The database, or for a trial a copy of it in memory, which keeps nobody waiting.
std::unique_ptr<physical_database> opened(const QString& file, bool is_trial) {
    if (!is_trial) {
        return open_office(file, office_use::writing);
    }
    auto copy = open_database({}, physical_database::open_mode::memory);
    open_database(file, physical_database::open_mode::read_only)->copy_to(*copy);
    require_office(*copy, file, office_use::writing);
    return copy;
}

QByteArray content_of(const QString& path) {
    constexpr qint64 largest = 0x4000000; // no list of 32,767 customers comes near
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw failure(texts::tr("%1: cannot be opened: %2").arg(path, file.errorString()));
    }
    if (file.size() > largest) {
        throw failure(texts::tr("%1: is too large for a list of customers").arg(path));
    }
    return file.read(largest);
}

int run(const QCommandLineParser& arguments) {
    const QString csv = arguments.positionalArguments().at(0);
    const QString file = arguments.positionalArguments().at(1);
    const bool is_trial = arguments.isSet(u"dry-run"_s);
    const duplicates way = way_of(arguments.value(u"duplicates"_s));
    const QString into_class = class_of(arguments);
    const QString charset = arguments.value(u"charset"_s);
    refuse_charset(charset);
    const customer_sheet sheet = read_customers(content_of(csv), csv, charset);
    try {
        const std::unique_ptr<physical_database> database = opened(file, is_trial);
        transaction importing_all(*database);
        customer_importer importing(*database, way, into_class);
        for (const customer_line& line : sheet.customers) {
            importing.take(line);
        }
        const QStringList remarks = sheet.remarks + importing.remarks();
        QString told =
            sheet.is_guessed ? texts::tr("taken for GB18030 (see --charset)\n") : QString();
        for (const QString& remark : remarks) {
            told += remark + u'\n';
        }
        told += is_trial ? texts::tr("dry run, nothing is changed: %1").arg(importing.summary())
                         : importing.summary();
        database->write_ahead();
        conclude(told, [&importing_all] { importing_all.commit(); });
        return remarks.isEmpty() ? exit_status::clean : exit_status::findings;
    } catch (const DataError& error) {
        throw failure(describe(error, file));
    }
}

} // namespace

command import_customers_command() {
    return {u"import-customers"_s,
            texts::tr("put the customers of a spreadsheet into a database"),
            help(),
            2,
            {QCommandLineOption(u"dry-run"_s), QCommandLineOption(u"class"_s, {}, u"name"_s),
             QCommandLineOption(u"duplicates"_s, {}, u"way"_s, u"skip"_s),
             QCommandLineOption(u"charset"_s, {}, u"name"_s)},
            run};
}
