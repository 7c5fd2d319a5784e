// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"
#include "tests/tools/smsdb_shell.h"
#include "tools/old_format/table_filler.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// An old value as the schema holds it.
QJsonValue new_value(const QJsonValue& value, const QJsonValue& column) {
    const QString name = column[u"name"].toString();
    if (value.isBool() || (value.isNull() && (name == u"isall" || name == u"readed"))) {
        return value.toBool() ? -1 : 0;
    }
    const bool is_moment = column[u"type"] == u"date/time"_s && !value.isNull();
    return is_moment ? value.toString().replace(u'-', u'/') : value;
}

// The query for a table as rows of JSON, and what it should give.
std::pair<QString, QStringList> old_rows(const QString& table, const QJsonObject& content) {
    const QString with_columns = u"v_smsm v_cusclass v_customer v_sendsms"_s;
    const bool is_view = table.startsWith(u"view");
    QStringList names;
    QStringList rows;
    for (const auto& row : content[u"rows"].toArray()) {
        QJsonArray values;
        names.clear();
        for (const auto& column : content[u"columns"].toArray()) {
            values.append(new_value(row[values.size()], column));
            names.append(column[u"name"].toString());
        }
        if (!is_view || with_columns.contains(values.first().toString())) {
            rows.append(QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact)));
        }
    }
    rows.sort();
    const QString query = u"select json_array(%1) from %2"_s.arg(names.join(u','), table);
    return {is_view ? query + u" where instr('%1',ViewNo)"_s.arg(with_columns) : query, rows};
}

} // namespace

class test_import : public QObject, private smsdb_shell {
    Q_OBJECT

private slots:
    void init() { database_.emplace(); }

    void carries_every_row() {
        for (const auto& old : {u"jet3-small"_s, u"jet4-small"_s}) {
            connection_pool::clear();
            QCOMPARE(run(u"rm -f FILE*; smsdb import $FIXTURES/%1.mdb FILE"_s.arg(old)), 1);
            QVERIFY(told_.contains("viewdef 11: \"v_old\" is no list"));
            QVERIFY(told_.contains("viewdef 4: \"v_group\" has no columns"));
            QFile file(u"" FIXTURES "/%1.json"_s.arg(old));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QJsonObject tables = QJsonDocument::fromJson(file.readAll()).object();
            QCOMPARE(tables.size(), 14);
            for (auto table = tables.begin(); table != tables.end(); ++table) {
                const auto& [query, expected] = old_rows(table.key(), table->toObject());
                QStringList rows = test_database::rows(query);
                rows.sort();
                QCOMPARE(rows, expected);
            }
            QCOMPARE(test_database::value(u"select count(distinct ViewNo) from viewitems"_s), 10);
            test_database::execute(u"insert into customer (cname) values ('next')"_s);
            QCOMPARE(test_database::value(u"select max(cid) from customer"_s), 17);
        }
    }

    void survives_damage_data() {
        QTest::addColumn<QString>("told");
        const auto row = [](const QString& damage, const QString& told) {
            QTest::newRow(qPrintable(damage)) << told;
        };
        row(u"echo text >DIR/old"_s, u"is no database of the old format"_s);
        row(u"truncate -s $(($(stat -c %s DIR/old) / 2)) DIR/old"_s, u"its end is missing"_s);
        row(u"truncate -s -PAGE DIR/old"_s, u"row(s) where there should be"_s);
        row(u"dd if=/dev/zero of=DIR/old bs=PAGE seek=2 count=1 conv=notrunc"_s, u"is damaged"_s);
        const QString edit = u"perl -0777 -pi -e '%1' DIR/old"_s;
        row(edit.arg(uR"(s/\xc3\x22\0\0/\x70\x11\x01\0/)"_s), u"parameters.port 1: \"70000\""_s);
        row(edit.arg(uR"(s/\x02(\0?\x08\0{7}\x01)/\x01$1/)"_s), // older than its last column
            u"rights            14        14"_s);
        row(edit.arg(uR"(s/(plain ASCII text.{3,6})\x03/$1\x01/s)"_s), // marked as Null
            u"smsmodels.text 15: is damaged there, an older copy may"_s);
        row(edit.arg(uR"(s/(n\0?d\0?i\0?s\0?o\0?)k/$1x/)"_s), // none may wait to be sent then
            u"its definition is not carried\nnote: "_s);
        row(edit.arg(uR"(s/(v_sendsms(\xff\xfe)?)sendisok/$1password/)"_s), u"shows passwords"_s);
        const QString knot =
            u"for $p (1 .. length() / PAGE - 1) { $at = $p * PAGE; substr($_, $at + 4, 4) eq \"LVAL\" and substr($_, $at + (0x1fff & unpack \"v\", substr($_, $at + (PAGE == 2048 ? 10 : 14))), 4) = pack \"V\", $p << 8 }"_s;
        row(edit.arg(knot), u"9, 14: is damaged there"_s);
        const QString flips = u"srand %1; substr($_, rand length, 1) = chr rand 256 for 1 .. 200"_s;
        for (int seed = 1; seed <= 10; ++seed) {
            row(edit.arg(flips.arg(seed)), {});
        }
    }

    void survives_damage() {
        QFETCH(QString, told);
        QString damage = QString::fromUtf8(QTest::currentDataTag());
        for (const auto& [jet, page] : {std::pair{u"3"_s, u"2048"_s}, {u"4"_s, u"4096"_s}}) {
            run(u"rm FILE*; cp $FIXTURES/jet%1-small.mdb DIR/old; "_s.arg(jet) +
                QString(damage).replace(u"PAGE"_s, page));
            const int status = run(u"smsdb import DIR/old FILE"_s);
            QVERIFY2(told_.contains(told.toUtf8()), told_);
            QVERIFY(status == 1 || (status == 2 && told_.startsWith("smsdb: ")));
            QCOMPARE(run(u"test $(ls DIR | wc -l) = %1"_s.arg(3 - status)), 0);
        }
    }

    void converts_data() {
        qputenv("TZ", "Asia/Shanghai"); // where no clock showed 2:30 on 4 May 1986
        QTest::addColumn<QString>("column");
        QTest::addColumn<QJsonValue>("old");
        QTest::addColumn<QString>("value"); // and "|", or what is lost
        const auto row = [](const QString& column, const QJsonValue& old, const QString& value) {
            QTest::addRow("%s", qPrintable(old.toVariant().toString())) << column << old << value;
        };
        row(u"sendsms.stime"_s, u"2009年3月5日 下午3:04:05"_s, u"2009/03/05 15:04:05|"_s);
        row(u"sendsms.rtime"_s, u"2009-3-5 12:30 AM"_s, u"2009/03/05 00:30:00|"_s);
        row(u"recvedsms.rtime"_s, u"２００９.3.5 12:30 pm"_s, u"2009/03/05 12:30:00|"_s);
        row(u"gsendsms.stime"_s, u"1986/5/4 上午 2:30"_s, u"1986/05/04 02:30:00|"_s);
        row(u"operatelog.optime"_s, u"5/3/2009"_s, u"operatelog.optime 1: \"5/3/2009\" is no"_s);
        row(u"sendsms.cid"_s, u" 12 "_s, u"12|"_s);
        row(u"sendsms.cid"_s, 1.5, u"sendsms.cid 1: \"1.5\" is no whole number"_s);
        row(u"sendsms.imsend"_s, 1, u"-1|"_s);
        row(u"gsendsms.isall"_s, u"否"_s, u"0|"_s);
        row(u"recvedsms.readed"_s, -1, u"1|"_s);
        row(u"smsmodels.text"_s, true, u"-1|"_s);
        row(u"smsmodels.text"_s, 13900000001.0, u"13900000001|"_s);
        row(u"smsmodels.text"_s, u"a\0b"_s, u"smsmodels.text 1: some of its characters"_s);
        row(u"smsmodels.mid"_s, u"5"_s, u"5|"_s);
        row(u"smsmodels.mid"_s, u"70000"_s, u"smsmodels 70000: its number is not one"_s);
        row(u"smsmodels.mid"_s, u"x"_s, u"smsmodels 1-2: its number is not one"_s);
    }

    void converts() {
        QFETCH(QString, column);
        QFETCH(QJsonValue, old);
        QFETCH(QString, value);
        const auto database = open_database({}, physical_database::open_mode::memory);
        fill_database(*database);
        const table_description& table = *find_table(column.section(u'.', 0, 0));
        const QString key = table.key().toString();
        const QString name = column.section(u'.', 1);
        old_format::losses lost;
        old_format::table_filler filler(*database, lost, table, table.name.toString(), {key, name});
        filler.take({1, old});
        filler.take({1, old}); // its number is given twice then
        const QString carried =
            database->column(u"select %1 from %2"_s.arg(name, table.name)).value(0);
        QVERIFY2(value == carried + u'|' || lost.lines().contains(u": "_s + value),
                 qPrintable(carried + lost.lines()));
        QCOMPARE(filler.rows_written(), lost.lines().contains(u"given twice") ? 1 : 0);
    }

    void leaves_no_core() { // its limits are set in this order
        QCOMPARE(
            run(u"cd DIR; ulimit -c unlimited; mkfifo p; exec 3<>p; dd if=/dev/zero bs=65536 "
                u"count=1 >&3 2>&-; "
                "smsdb read-old $FIXTURES/jet4-small.mdb --charset GBK >&3 & "
                "until grep -q '^Max cpu time  *[0-9]' /proc/$!/limits; do :; done; "
                "grep '^Max core file size  *0  *0 ' /proc/$!/limits; r=$?; kill $!; exit $r"_s),
            0);
    }

    void imports_customers_data() {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("told");
        QTest::addColumn<QString>("last"); // customer
        const auto row = [](const char* csv, const char* options, const QString& told,
                            const QString& last) {
            QTest::newRow(csv) << QString::fromUtf8(options) << told << last;
        };
        const QString one = u"1 customer(s) added, 0"_s;
        const QString none = u"1|旧|1-34||||"_s;
        row("手机,姓名,备注\n 101,甲,\"a\nb, c\"", "", one, u"2|甲|101||||a\nb, c"_s);
        row("\xca\xd6\xbb\xfa;name\n102;\xd2\xd2", "", u"taken for GB18030"_s, u"2|乙|102||||"_s);
        row("\xa4\xe2\xbe\xf7,\xa9\xca\xa7\x4f\n102,\xa8\x6b", "--charset Big5", one,
            u"2||102|男|||"_s);
        row("客戶名稱,手機號碼,備註\n甲,102,乙", "", one, u"2|甲|102||||乙"_s);
        row("mobile\n103", "--charset none", u"--charset none: unknown"_s, none);
        row("\ufeffMobile\tPhone\r\n103\t'=1", "", one, u"2||103|||=1|"_s);
        row("mobile,memo\n104,\"a\nb\"\n\n ,y", "", u"line 5: left out: no"_s, u"2||104||||a\nb"_s);
        row("mobile\n1.39E+10\n105", "", u"line 2: left out: the spread"_s, u"2||105||||"_s);
        row("mobile,sex\n134,男", "", u"line 2: skipped: customer 1 has"_s, none);
        row("mobile,sex,name\n134,男,", "--duplicates update", u"1 updated"_s,
            u"1|旧|1-34|男|||"_s);
        row("mobile\n(134)", "--duplicates update", u"0 customer(s) added, 1"_s, none);
        row("mobile\n105\n105", "--duplicates add", u"3: added again"_s, u"3||105||||"_s);
        row("mobile\n138-0013-8000\n+86 138 0013 8000", "", u"line 3: "_s, u"2||13800138000||||"_s);
        row("mobile\n106", "--dry-run --class 新", u"changed: 1 customer(s)"_s, none);
        row("sep=;\nＮａｍｅ;手　机（必填）;电话\n甲;=\"１２３\";\"=\"\"010\"\"\"", "", one,
            u"2|甲|123|||010|"_s);
        row("mobile,memo\n=\"107\",\"x,=\"\",y\"", "", one, u"2||107||||x,=\",y"_s);
        row("\"memo(a;b;c)\",mobile\nx,105", "", one, u"2||105||||x"_s);
        row("mobile,\n12345.0,\n无',\n106,x", "",
            u"but \"无'\"\nline 4: column 2 is not used: it has no"_s, u"3||106||||"_s);
        row("mobile,name\n101,张三\n102,\xc0\xee", "", u"line 3 is not in UTF-8"_s, none);
        row("mobile,name\n101,\xc0\xee\xc0", "", u"is no text"_s, none);
        row("mobile\n\"6", "", u"line 2: a quotation mark"_s, none);
        row("name,\n6", "", u"import-customers --help): \"name"_s, none);
        row("mobile\n101\n102\n103", "# full", u"no more than 2 new one(s) fit"_s, none);
    }

    void imports_customers() {
        QFETCH(QString, options);
        QFETCH(QString, told);
        test_database::execute(u"insert into customer values (1,'','旧','','1-34','','')"_s);
        if (options.contains(u"full"_s)) {
            test_database::execute(u"update sqlite_sequence set seq=32765 where name='customer'"_s);
        }
        QFile file(database_->folder() + u"/csv"_s);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QTest::currentDataTag()) > 0);
        file.close();
        run(u"smsdb import-customers DIR/csv FILE "_s + options);
        QVERIFY2(told_.contains(told.toUtf8()), told_);
        const QString query = u"select cid,cname,mobile,sex,birth,phone,memo from customer"_s;
        QTEST(test_database::rows(query).last(), "last");
    }

    void gives_back_what_it_took() {
        test_database::execute(
            u"insert into customer values (7,'123','''甲,\"x\";','','+123','a\tb',' 两 ,=\",y\r\n\r ')"_s);
        QCOMPARE(run(u"smsdb export-customers FILE DIR/1 && smsdb create DIR/n"_s), 0);
        QCOMPARE(run(u"smsdb import-customers --class 新 DIR/1 DIR/n; echo $?"_s), 0);
        QVERIFY2(told_.endsWith("1 customer(s) added, 0 updated, 0 skipped\n1\n"), told_);
        QCOMPARE(run(u"smsdb export-customers DIR/n DIR/2; ! smsdb export-customers FILE DIR/1 && "
                     "cmp DIR/1 DIR/2 && smsdb check DIR/n | grep '^cgroup.gid  *1 '"_s),
                 0);
    }
};

QTEST_GUILESS_MAIN(test_import)
#include "test_import.moc"
