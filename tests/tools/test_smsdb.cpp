// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/strconn.h"
#include "platform/connection.h"
#include "platform/connection_pool.h"
#include "tests/tools/smsdb_shell.h"

#include <QTest>

using namespace Qt::StringLiterals;

class test_smsdb : public QObject, private smsdb_shell {
    Q_OBJECT

private:
    static QStringList content() {
        return test_database::rows(
            u"select sql from sqlite_master where sql > '' union all select keyword from viewitems union all select cname from customer"_s);
    }

private slots:
    void init() { database_.emplace(); }

    void answers_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("answer");
        const auto finds = [](const char* sql, const QString& found) {
            QTest::newRow(sql) << QString::fromUtf8(sql) << u"smsdb check FILE"_s << 1 << found;
        };
        finds("insert into cgroup (cid,ccid) values (7,0)", u"finding: cgroup.ccid points"_s);
        finds("insert into sendsms (cid) values (0),(7),(null)", u"in 2 row(s): 2, 3\n"_s);
        finds("insert into gsendsms (cid,isall) values (0,0),(9,-1),(9,0)", u"row(s): 3\n"_s);
        finds("delete from viewdef where ViewNo='vusers'", u"in 2 row(s): 40, 41\n"_s);
        finds("update parameters set port=70000", u"parameters.port holds no 16-bit"_s);
        finds("delete from parameters", u"parameters: holds 0 rows"_s);
        finds("drop view vwgroup", u"view vwgroup is missing"_s);
        finds("alter table customer drop memo", u"column customer.memo is missing"_s);
        finds("update sqlite_sequence set seq=26214 where name='users'", u"number 26214 of"_s);
        QTest::newRow("lease")
            << u"select 1"_s
            << u"touch FILE-lease; chmod 400 FILE-lease; smsdb check FILE; s=$?; rm -f FILE-lease; exit $s"_s
            << 1 << u"sms.old.mdb-lease cannot be written: "_s;
        const QString big =
            u"insert into sendsms (cid,sms,sendisok,stime) values (0,hex(zeroblob(300000)),-1,'2024/1/1')"_s;
        QTest::newRow("clean") << big << u"smsdb check FILE"_s << 0 << u"\nno findings\n"_s;
        const auto refuses = [&big](const char* line, const QString& complaint) {
            QTest::newRow(line) << big << QString::fromUtf8(line) << 2 << complaint;
        };
        refuses("smsdb check FILE FILE", u"takes 1 file"_s);
        refuses("smsdb check DIR/none", u"there is no such file"_s);
        refuses("smsdb check DIR/text", u"is no database"_s);
        refuses("smsdb create DIR/text", u"exists"_s);
        refuses("smsdb backup FILE FILE --force", u"is the database itself"_s);
        refuses("smsdb backup FILE DIR/full", u"reading or writing failed"_s);
        refuses("smsdb archive FILE --before 2023/02/29", u"expected a date"_s);
        refuses("smsdb archive FILE --before 2024-1-02", u"expected a date"_s);
        refuses("smsdb archive FILE --before 2024-01-02 --to DIR/text", u"exists"_s);
        refuses("smsdb archive FILE --before 2024-01-02 --to DIR/full", u"too large"_s);
    }

    void answers() {
        QFETCH(QString, sql);
        QFETCH(QString, line);
        QFETCH(QString, answer);
        test_database::execute(sql);
        connection_pool::clear(); // or reading the file would drop the locks
        QCOMPARE(run(u"echo text >DIR/text; md5sum DIR/*"_s), 0);
        const QByteArray before = told_;
        QTEST(run(line), "status");
        QVERIFY2(told_.contains(answer.toUtf8()), told_);
        QCOMPARE(run(u"md5sum DIR/*"_s), 0);
        QCOMPARE(told_, before);
    }

    void copies() { // while somebody is writing
        const QString folder = database_->folder() + u"/副 本"_s;
        const QString copy = u"'DIR/副 本/sms.old.mdb'"_s;
        test_database::execute(u"insert into customer (cname) values ('张')"_s);
        const QStringList expected = content();
        Connection writing;
        writing.ConnectionString = strconn;
        writing.Open();
        writing.BeginTrans();
        writing.Execute(u"update customer set cname='later'"_s);
        QCOMPARE(run(u"mkdir '%1'; smsdb backup FILE "_s.arg(folder) + copy), 0);
        writing.CommitTrans();
        QCOMPARE(run(u"smsdb backup FILE "_s + copy), 2);
        QCOMPARE(run(u"ls -A '%1'; stat -c %a "_s.arg(folder) + copy), 0);
        QCOMPARE(told_, "sms.old.mdb\n600\n"_qba);
        strconn = make_strconn(folder);
        QCOMPARE(content(), expected);
        connection_pool::clear();
        QCOMPARE(run(u"smsdb backup --force FILE "_s + copy), 0);
        QCOMPARE(content().last(), u"later"_s);
        QCOMPARE(run(u"rm %1; smsdb create %1"_s.arg(copy)), 0);
        QCOMPARE(content(), expected.first(expected.size() - 1));
    }

    void archives() {
        const QString archive = u"smsdb archive FILE --before 2024/01/31"_s;
        test_database::execute(u"insert into customer (cname) values ('=张,\"三\"')"_s);
        test_database::execute(
            u"insert into sendsms (cid,mobile,sms,sendisok,smsfrom,imsend,rtime,stime) values (0,'1','waits',0,0,0,'2020/01/01','2020/01/01'),(1,'+86139','说\nb',-1,-1,0,'2024/01/30','2024/01/30 23:59:59'),(0,'2','that day',-1,0,0,'','2024/01/31 00:00:00'),(8,'3','=cmd',-1,0,-1,'2024/01/01','2024/1/1'), (0,'4','when?',-1,0,0,'','soon')"_s);
        test_database::execute(
            u"insert into recvedsms (mobile,sms,rtime,readed) values ('5','''q''','2024-01-02',1),('6','＠home','2024/01/02',0),('7','new','2024/02/01',0)"_s);
        QCOMPARE(run(archive), 2);
        QVERIFY2(told_.contains("is open in a client"), told_);
        connection_pool::clear();
        QCOMPARE(run(archive), 0);
        QVERIFY(told_.contains("time cannot be read, number(s) 3\n"));
        QVERIFY(told_.contains("next numbers: sendsms 4, recvedsms 2\n"));
        QCOMPARE(run(u"cat FILE-before-2024-01-31.csv"_s), 0);
        QCOMPARE(
            told_,
            "\ufeff类别,编号,客户编号,客户名称,手机号码,短信,发送时间,录入时间,接收时间,方式,来源,"
            "已读\r\n"
            "发送,2,1,\"'=张,\"\"三\"\"\",'+86139,\"说\nb\",2024/01/30 "
            "23:59:59,2024/01/30,,定时,群发,\r\n"
            "发送,4,8,,3,'=cmd,2024/1/1,2024/01/01,,立即,单发,\r\n"
            "接收,1,0,,5,''q',,,2024-01-02,,,√\r\n接收,2,0,,6,'＠home,,,2024/01/02,,,\r\n"_qba);
        QCOMPARE(run(archive), 0);
        QVERIFY(told_.contains("nothing to archive\n"));
        test_database::execute(u"insert into sendsms (sms) values ('next')"_s);
        QCOMPARE(test_database::rows(u"select smsid,sms from sendsms"_s).join(u' '),
                 u"1|waits 2|that day 3|when? 4|next"_s);
        QCOMPARE(test_database::value(u"select max(smsrid) from recvedsms"_s).toInt(), 1);
    }
};

QTEST_GUILESS_MAIN(test_smsdb)
#include "test_smsdb.moc"
