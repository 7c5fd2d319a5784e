// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/tools/smsdb_shell.h"

#include <QFile>
#include <QTest>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

class test_smsdb : public QObject, private smsdb_shell {
    Q_OBJECT

private slots:
    void init() { database_.emplace(); }

    void answers_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("answer");
        const auto answers = [](const char* sql, const QByteArray& line, int status,
                                const QString& told) {
            QTest::addRow("%s | %s", sql, line.constData())
                << QString::fromUtf8(sql) << QString::fromUtf8(line) << status << told;
        };
        const auto finds = [&answers](const char* sql, const QString& found) {
            answers(sql, "smsdb check FILE", found.contains(u"note") ? 0 : 1, found);
        };
        finds("insert into cgroup (cid,ccid) values (7,0)", u"note: cgroup.ccid points"_s);
        finds("insert into sendsms (cid) values (0),(7),(null)",
              u"note: sendsms.cid points nowhere (customer) in 2 row(s): 2, 3\n"_s);
        finds("insert into gsendsms (cid,isall) values (0,0),(9,-1),(9,0)",
              u"note: gsendsms.cid points nowhere (cusclass) in 1 row(s): 3\n"_s);
        finds("insert into rights (userid,funid) values (1,9)", u"finding: rights.funid points"_s);
        finds("insert into customer (mobile) values ('+86 138-0013-8000'),('12')",
              u"(see smsdb tidy --numbers) in 1 row(s): 1\nnote: customer.mobile is no"_s);
        finds("insert into users (username,password) values ('a','''')", u"finding: an apostr"_s);
        finds("insert into customer (mobile,memo) values ('138','o''clock')", u"an apostrophe"_s);
        finds("update rights set funid=2", u"finding: nobody can manage the operators"_s);
        finds("update users set password=null",
              u"password is Null (the operator cannot log in) in 1 row(s): 1\nfinding: nobody"_s);
        finds("delete from viewdef where ViewNo='vusers'", u"in 2 row(s): 40, 41\n"_s);
        finds("update parameters set port=70000", u"parameters.port holds no 16-bit"_s);
        finds("delete from parameters", u"parameters: holds 0 rows"_s);
        finds("drop view vwgroup", u"view vwgroup is missing"_s);
        finds("drop view vwgroup;create view vwgroup as select *,1 cname,1 cusname,1 mobile from "
              "cgroup",
              u"finding: view vwgroup is defined otherwise"_s);
        finds("drop index customer_mobile", u"finding: index customer_mobile is missing"_s);
        finds("alter table users add a", u"finding: table users is defined otherwise"_s);
        finds("create index a on users (username)", u"note: index a is none of this system's"_s);
        finds("pragma user_version = 1", u"finding: is of an older version, 1 and not "_s);
        finds("pragma user_version = 99", u"finding: is of a newer version, 99 and not "_s);
        finds("alter table customer drop memo", u"column customer.memo is missing"_s);
        finds("update sqlite_sequence set seq=26214 where name='users'", u"number 26214 of"_s);
        answers("select 1",
                "(umask 377; : >FILE-lease); smsdb check FILE; s=$?; rm -f FILE-lease; exit $s", 1,
                u"sms.old.mdb-lease cannot be written: "_s);
        answers("insert into recvedsms (mobile) values ('1-38')",
                "smsdb tidy --numbers --dry-run FILE", 0, u"\"1-38\" becomes 138\n"_s);
        answers("select 1", "smsdb check DIR/other", 0, u"\nno findings\n"_s);
        answers("select 1", "smsdb import-customers --dry-run DIR/csv DIR/other", 0,
                u"is changed: 1 customer(s) added"_s);
        const auto refuses = [&answers](const char* line, const QString& told) {
            answers("insert into sendsms (cid,sms,sendisok,stime) values "
                    "(0,hex(zeroblob(300000)),-1,'2024/1/1')",
                    line, 2, told);
        };
        refuses("smsdb check FILE FILE", u"takes 1 name"_s);
        refuses("smsdb create DIR/text", u"exists"_s);
        refuses("smsdb create DIR/gone", u"is in the way"_s);
        refuses("smsdb backup FILE DIR/full", u"reading or writing failed"_s);
        refuses("smsdb restore DIR/text FILE", u"/text: is no database"_s);
        refuses("smsdb restore DIR/empty FILE", u"it has no table smsmodels"_s);
        refuses("smsdb restore DIR/none FILE", u"there is no such file"_s);
        refuses("smsdb restore FILE DIR/link", u"is the database itself"_s);
        refuses("smsdb grant FILE \"o'b\"", u"nobody can log in"_s);
        refuses("smsdb archive FILE --before 2023/02/29", u"expected a date"_s);
        refuses("smsdb archive FILE --before 2024-1-02", u"expected a date"_s);
        refuses("smsdb archive FILE --before 2024-01-02 --to DIR/text", u"exists"_s);
        refuses("smsdb archive FILE --before 2024-01-02 --to DIR/full", u"too large"_s);
        refuses("smsdb import-customers DIR/large FILE", u": reading or writing failed"_s);
        const QByteArray writing =
            " 'grant FILE a' 'tidy FILE' 'renumber FILE' 'archive FILE --before 2024-01-02' "
            "'import-customers DIR/csv FILE' 'import-customers --dry-run DIR/csv FILE'";
        const QByteArray all =
            "'export-customers FILE DIR/new' 'backup FILE DIR/new' 'restore FILE DIR/other'" +
            writing;
        for (const auto& [sql, commands, told] :
             {std::tuple("pragma user_version = 1", writing, " 1 and not .*; upgrade it first"),
              {"pragma user_version = 99", "'upgrade FILE' " + all, "by a newer version"},
              // Whoever is not told does not have it done.
              {"delete from rights", "'create DIR/new' " + all, "output cannot be written"}}) {
            const QByteArray each = "; do smsdb $c 2>&1 >/dev/full | grep '%' || exit 2; done";
            answers(sql, "for c in " + commands + QByteArray(each).replace('%', told), 0, {});
        }
    }

    void answers() {
        QFETCH(QString, sql);
        QFETCH(QString, line);
        QFETCH(QString, answer);
        execute(sql);
        run(u"cd DIR; echo text >text; : >empty; : >gone-wal; ln -s FILE link; smsdb create other "
            u">&-; "
            "printf '手机\\n138\\n' >csv; (echo 手机,备注; yes $(printf %0900d) | head -n 550 | "
            "nl -s , -v 200 -w 1) >large; md5sum *"_s);
        const QByteArray before = told_;
        QTEST(run(line), "status");
        QVERIFY2(told_.contains(answer.toUtf8()), told_);
        QCOMPARE(told_.contains("added"), answer.contains(u"added"));
        run(u"cd DIR; md5sum *"_s);
        QCOMPARE(told_, before);
    }

    void copies() { // one moment, while somebody is writing
        execute(u"insert into smsmodels (text) values (hex(zeroblob(5000000)))"_s);
        constexpr int patience = 1'000'000;
        std::atomic<int> writes = 0;
        std::jthread writer([this, &writes](const std::stop_token& is_copied) {
            const auto other = open_database(database_->path());
            other->execute(u"pragma synchronous=off"_s);
            for (; !is_copied.stop_requested() && writes < patience; ++writes) {
                other->execute(u"insert into customer (cname) values ('a'),('b')"_s);
            }
        });
        QTRY_VERIFY(writes > 0);
        run(u"ulimit -S -f unlimited; cd DIR; mkdir '副 本'; smsdb backup FILE '副 本/a'"_s);
        writer = std::jthread();
        QVERIFY(writes < patience);
        QCOMPARE(
            run(u"cd DIR/副*; smsdb check a && ! smsdb backup FILE a && ls -A && stat -c %a a && "
                "smsdb export-customers a c && test $(($(wc -l <c) % 2)) = 1 -a $(wc -l <c) -gt 1"_s),
            0);
        QVERIFY2(told_.contains("exists already\na\n600\n"), told_);
    }

    void restores() {
        const QString restoring = u"smsdb restore DIR/b DIR/link; stat -Lc '%a %u' DIR/link"_s;
        run(u"smsdb backup FILE DIR/b; chmod 640 FILE; chown 65534 FILE 2>&-; ln -s FILE DIR/link; "
            "stat -c '%a %u' FILE"_s);
        const QByteArray owned = told_.sliced(told_.indexOf('\n'));
        test_database::execute(u"insert into customer (cname) values ('later')"_s);
        run(restoring);
        QVERIFY2(told_.contains("is open in a client"), told_);
        // As a killed client leaves it.
        QCOMPARE(run(u"cp FILE DIR/k && cp FILE-wal DIR/k-wal && smsdb restore DIR/b DIR/k && "
                     "smsdb export-customers DIR/k.before-restore DIR/c && grep later DIR/c"_s),
                 0);
        connection_pool::clear();
        run(restoring);
        QVERIFY2(told_.endsWith(".before-restore" + owned), told_);
        QCOMPARE(test_database::value(u"select count(*) from customer"_s).toInt(), 0);
        connection_pool::clear();
        QCOMPARE(run(u"cd DIR; smsdb restore FILE.before-restore FILE; echo damage >k; : >k-wal; "
                     "smsdb restore b k; smsdb restore b n; test -L link && "
                     "cat k.before-restore && echo $(ls -A)"_s),
                 0);
        QVERIFY2(told_.endsWith("damage\nb c k k.before-restore k.before-restore-wal link n "
                                "sms.old.mdb sms.old.mdb.before-restore\n"),
                 told_);
        QCOMPARE(test_database::value(u"select count(*) from customer"_s).toInt(), 1);
    }

    void upgrades() {
        connection_pool::clear();
        QFile office(u"" FIXTURES "/office-0.1.0.sql"_s);
        QVERIFY(office.open(QIODevice::ReadOnly) && QFile::remove(database_->path()));
        open_database(database_->path(), physical_database::open_mode::create)
            ->execute_script(office.readAll().constData());
        auto client = open_database(database_->path());
        QVERIFY(!client->table_names().isEmpty()); // it reads
        QCOMPARE(run(u"smsdb upgrade FILE"_s), 2);
        QVERIFY2(told_.contains("is open in a client"), told_);
        client.reset();
        run(u"cd DIR; smsdb export-customers FILE c && smsdb backup FILE b && smsdb restore b r; "
            "smsdb upgrade FILE >/dev/full; ls -A; ln -s FILE l; smsdb upgrade l; smsdb check l; "
            "smsdb upgrade l; smsdb export-customers FILE-before-step-2 d"_s);
        QCOMPARE(told_.count(": is of an older version, 1 and not "), 4); // each in its turn
        QVERIFY2(told_.contains("mdb-before-step-2\nupgraded l from version 1 to "), told_);
        QVERIFY(told_.contains("nothing to upgrade\nsmsdb: ") && !told_.contains("otherwise"));
    }

    void leaves_nothing_half_made() { // while nobody reads what it tells
        const QString asked =
            u"cd DIR; echo x >n.part; mkfifo p; exec 3<>p; "
            "dd if=/dev/zero bs=65536 count=1 >&3 2>&-; smsdb create n >&3 & "
            "until test -e n.smsdb-part -o -e n; do :; done; kill -%1 $!; wait $!; ls n*"_s;
        QCOMPARE(run(asked.arg(u"TERM"_s)), 0);
        QVERIFY2(told_.endsWith("d\nn.part\n"), told_); // Terminated
        QCOMPARE(run(asked.arg(u"KILL"_s) + u"; test ! -e n && smsdb create n >&- && ls n*"_s), 0);
        QVERIFY2(told_.endsWith("\nn\nn.part\n"), told_); // what the other left is made anew
    }

    void reads_where_nothing_can_be_written() {
        connection_pool::clear();
        // The superuser writes everywhere, so that power is put aside.
        QCOMPARE(run(u"cd DIR; mkdir '%4 ?#'; mv FILE '%4 ?#/a'; chmod 555 '%4 ?#'; "
                     "test $(id -u) = 0 && x='setpriv --bounding-set=-dac_override'; "
                     "$x smsdb check '%4 ?#/a' && $x smsdb backup '%4 ?#/a' b && "
                     "$x smsdb export-customers '%4 ?#/a' c && ls -A '%4 ?#'; "
                     "r=$?; chmod 755 '%4 ?#'; exit $r"_s),
                 0);
        QVERIFY2(told_.endsWith("to c\na\n"), told_);
    }

    void tidies() {
        execute(
            u"insert into customer (mobile) values ('+86 138-0013-8000'),('12'),('13900139000');insert into sendsms (mobile,sendisok) values ('138 0013 8000',0),('1-3-8',-1);insert into recvedsms (mobile) values ('8613800138000');insert into cusclass (cname) values ('a');insert into cgroup (cid,ccid) values (1,1),(4,1),(3,8);insert into rights (userid,funid) values (5,1)"_s);
        const QString all =
            u"select mobile from customer union all select mobile from sendsms union all select mobile from recvedsms union all select gid from cgroup"_s;
        QCOMPARE(run(u"smsdb tidy FILE; smsdb tidy --numbers FILE; smsdb tidy FILE"_s), 0);
        QCOMPARE(told_, "cgroup 2: taken out: there is no customer 4\n"
                        "cgroup 3: taken out: there is no cusclass 8\n"
                        "rights 3: taken out: there is no users 5\n"
                        "customer 1: \"+86 138-0013-8000\" becomes 13800138000\n"
                        "customer 2: \"12\" is no number and stays\n"
                        "sendsms 1: \"138 0013 8000\" becomes 13800138000\n"
                        "recvedsms 1: \"8613800138000\" becomes 13800138000\n"
                        "nothing to tidy\n"_qba);
        QCOMPARE(test_database::rows(all).join(u' '),
                 u"13800138000 12 13900139000 13800138000 1-3-8 13800138000 1"_s);
    }

    void grants() {
        execute(u"delete from rights;update users set password='lost'"_s);
        run(u"smsdb grant FILE Valdrine; smsdb grant FILE ' 老板 '; smsdb check FILE"_s);
        QVERIFY2(told_.contains("THE PASSWORD IS EMPTY") && told_.endsWith("no findings\n"), told_);
        const QString granted =
            u"select username,password,group_concat(funid,'') from users join rights using (userid) group by userid"_s;
        QCOMPARE(test_database::rows(granted).join(u' '), u"valdrine||12 老板||12"_s);
    }

    void archives_and_renumbers() {
        const QString archive = u"smsdb archive FILE --before 2024/01/31"_s;
        execute(
            u"insert into customer (cname) values ('=张,\"三\"');insert into sendsms (cid,mobile,sms,sendisok,smsfrom,imsend,rtime,stime) values (0,'1','waits',0,0,0,'2020/01/01','2020/01/01'),(1,'+86139','说\nb',-1,-1,0,'2024/01/30','2024/01/30 23:59:59'),(0,'2','that day',-1,0,0,'','2024/01/31 00:00:00'),(8,'3','=cmd',-1,0,-1,'2024/01/01','2024/1/1'), (0,'4','when?',-1,0,0,'','soon');insert into recvedsms (mobile,sms,rtime,readed) values ('5','''q''','2024-01-02',1),('6','＠home','2024/01/02',0),('7','new','2024/02/01',0);insert into gsendsms (sms) values ('a'),('b');insert into cgroup (cid) values (1),(2);insert into operatelog (operation) values ('a'),('b');insert into rights (userid) values (1);delete from gsendsms where gsid=1;delete from cgroup where gid=1;delete from operatelog where opid=1;delete from rights where rid=1"_s);
        QCOMPARE(test_database::value(u"select count(*) from rights"_s).toInt(), 2); // and holds on
        for (const QString& line : {archive, u"smsdb renumber FILE"_s}) {
            QCOMPARE(run(line), 2);
            QVERIFY2(told_.contains("is open in a client"), told_);
        }
        connection_pool::clear();
        QCOMPARE(run(archive), 0);
        QVERIFY(told_.contains("time cannot be read, number(s) 3\n"));
        QVERIFY(told_.endsWith("next numbers: cgroup 2, sendsms 4, recvedsms 2, gsendsms 2, "
                               "rights 3, operatelog 2\n"));
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
        execute(
            u"update sendsms set sms=hex(zeroblob(100000)) where smsid=1;delete from sendsms where smsid=1"_s);
        QCOMPARE(run(u"smsdb renumber FILE && test $(stat -c %s FILE) -lt 200000"_s), 0);
        QVERIFY2(told_.contains(" cgroup 2, sendsms 3, "), told_);
        execute(u"insert into sendsms (sms) values ('next')"_s);
        QCOMPARE(test_database::rows(u"select smsid,sms from sendsms"_s).join(u' '),
                 u"1|that day 2|when? 3|next"_s);
        const QString numbers =
            u"select smsrid,gsid,gid,opid,rid from recvedsms,gsendsms,cgroup,operatelog,rights order by rid"_s;
        QCOMPARE(test_database::rows(numbers).join(u' '), u"1|1|1|1|1 1|1|1|1|2"_s);
    }
};

QTEST_GUILESS_MAIN(test_smsdb)
#include "test_smsdb.moc"
