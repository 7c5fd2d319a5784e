// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_cusclass.h"
#include "data/c_customer.h"
#include "data/c_group.h"
#include "data/c_gsendsms.h"
#include "data/c_parameter.h"
#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"
#include "data/c_smsm.h"
#include "data/constvalues.h"
#include "data/schema.h"
#include "data/strconn.h"
#include "platform/connection_pool.h"
#include "tests/support/error_of.h"
#include "tests/support/test_database.h"

#include <QFile>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using Kind = DataError::Kind;

/// What a first start makes, and what the access classes write and read; a fresh database a test.
class test_data : public QObject {
    Q_OBJECT

    std::optional<test_database> database_;
    QDateTime now_{{2023, 12, 31}, {23, 59, 59}};
    c_smsm phrases_;
    c_cusclass classes_;
    c_customer customers_;
    c_group groups_;
    c_parameter parameters_;
    c_sendsms outgoing_;
    c_recvedsms received_;
    c_gsendsms group_sends_;

    static QString rows(const QString& statement) {
        return test_database::rows(statement).join(u' ');
    }
    static void run(const QString& statement) { test_database::execute(statement); }

    /// What the file holds after it was given `content` and the program started.
    [[nodiscard]] QByteArray started_on(const QByteArray& content) const {
        connection_pool::clear();
        QFile file(database_->path());
        const bool written =
            file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
        file.close();
        ensure_database(strconn);
        return written && file.open(QIODevice::ReadOnly) ? file.readAll() : "no access";
    }

    /// How many of the operations succeed.
    [[nodiscard]] int add_to_each() const {
        return phrases_.addrec(u"好"_s) + classes_.addrec(u"A"_s) + groups_.addrec(2, 1) +
               customers_.addrec(u"b"_s, u"n"_s, u"s"_s, u"m"_s, u"p"_s, u"r"_s) +
               outgoing_.addrec(u"m"_s, 1, u"Hi"_s, false, now_, now_.addSecs(1), true, false) +
               received_.addrec(u"m"_s, u"好"_s, now_, true);
    }

    [[nodiscard]] int change_each() const {
        return phrases_.updaterec(u"%1%2"_s, 1) + classes_.updaterec(u"B"_s, 1) +
               customers_.updaterec(1, u"B"_s, u"N"_s, u"S"_s, u"M"_s, u"P"_s, u"R"_s) +
               groups_.updaterec(1, 1, 2) + outgoing_.updaterec(1, u"M"_s, 2, u"%1"_s, now_) +
               received_.updaterec(1) + outgoing_.sended(1) + parameters_.updaterec(u"h"_s, -1);
    }

private slots:
    void init() {
        database_.emplace();
        phrases_.connection = classes_.connection = customers_.connection = groups_.connection =
            parameters_.connection = outgoing_.connection = received_.connection =
                group_sends_.connection = strconn;
    }

    void a_fresh_database_lets_the_operator_in() {
        QCOMPARE(rows(u"select * from users"_s), u"1|valdrine|"_s);
        QCOMPARE(rows(u"select userid, funid from rights natural join Functions"_s), u"1|1 1|2"_s);
        QCOMPARE(rows(u"select * from [Parameters]"_s), u"127.0.0.1|9100"_s);
        const QString views =
            u"v_smsm=smsmodels v_cusclass=cusclass v_customer=customer v_group=vwgroup "
            u"v_sendsms=vwsendsms v_gsendsms=vwgsendsms v_recvedsms=vwrecvedsms vusers=users "
            u"vrights=Functions,(select\t0\tSelected) operateview=vwoperate"_s;
        for (const QString& view : views.split(u' ')) {
            const QStringList columns = test_database::rows(
                u"select keyword from viewitems natural join (select ViewNo from viewdef) where ViewNo='%1'"_s
                    .arg(view.section(u'=', 0, 0)));
            QVERIFY2(columns.size() > 1, qPrintable(view));
            QCOMPARE(
                rows(u"select %1 from %2 where 0"_s.arg(columns.join(u','), view.section(u'=', 1))),
                u""_s);
        }
    }

    void a_start_leaves_other_files_alone() {
        run(u"delete from users"_s);
        connection_pool::clear();
        QFile file(database_->path());
        const QByteArray own = file.open(QIODevice::ReadOnly) ? file.readAll() : "no access";
        QCOMPARE(started_on(own), own);
        const QByteArray jet("\0\1\0\0Standard Jet DB\0", 20);
        for (const QByteArray& content :
             {jet.leftJustified(8000), QByteArray("abc"), jet.mid(4),
              QByteArray("SQLite format 3").leftJustified(8000, '\0')}) {
            QCOMPARE(started_on(content), content);
            QCOMPARE(error_of([] { run(u"delete from users"_s); }),
                     content.startsWith(jet) ? Kind::old_format : Kind::not_a_database);
        }
        QVERIFY(!started_on({}).isEmpty()); // a first start was killed
        QCOMPARE(rows(u"select count(*) from users"_s), u"1"_s);
    }

    void keys_are_given_out_once() {
        for (const QString& table : {u"smsmodels"_s, u"cusclass"_s, u"customer"_s, u"cgroup"_s,
                                     u"sendsms"_s, u"recvedsms"_s, u"gsendsms"_s, u"users"_s}) {
            run(u"insert into %1 (rowid) values (7)"_s.arg(table));
            run(u"delete from "_s + table);
            run(u"insert into %1 default values"_s.arg(table));
            QCOMPARE(rows(u"select rowid from "_s + table), u"8"_s);
        }
    }

    void views_join_what_belongs_together() {
        run(u"insert into customer (cname, mobile) values ('甲','138'),('乙','138'),(NULL,'')"_s);
        run(u"insert into cusclass (cname) values ('VIP')"_s);
        run(u"insert into cgroup (cid, ccid) values (2,1),(99,1),(1,99)"_s);
        run(u"insert into sendsms (mobile, cid) values ('138',2),('139',99),('',3)"_s);
        run(u"insert into recvedsms (mobile) values ('138'),('555'),('')"_s);
        QCOMPARE(rows(u"select gid, cid, cname, cusname, mobile from vwgroup"_s),
                 u"1|2|VIP|乙|138"_s);
        const auto member = groups_.getrec(1);
        QCOMPARE(member->cname + member->cusname + member->mobile, u"VIP乙138"_s);
        QCOMPARE(rows(u"select smsid, cname from vwsendsms order by 1"_s), u"1|乙 2| 3|"_s);
        QCOMPARE(rows(u"select smsrid, cid, cname from vwrecvedsms order by 1"_s),
                 u"1|1|甲 2|0| 3|0|"_s);
    }

    void a_write_touches_its_row_alone() {
        run(u"insert into parameters values ('x', 1)"_s);
        QCOMPARE(add_to_each() + add_to_each() + change_each(), 20);
        QCOMPARE(rows(u"select * from parameters"_s), u"h|-1 h|-1"_s); // every row
        QCOMPARE(rows(u"select * from smsmodels"_s), u"1|%1%2 2|好"_s);
        QCOMPARE(rows(u"select * from cusclass"_s), u"1|B 2|A"_s);
        QCOMPARE(rows(u"select * from customer"_s), u"1|B|N|S|M|P|R 2|b|n|s|m|p|r"_s);
        QCOMPARE(rows(u"select * from cgroup"_s), u"1|1|2 2|2|1"_s);
        QCOMPARE(rows(u"select mobile, sms, readed from recvedsms"_s), u"m|好|1 m|好|0"_s);
        QCOMPARE(rows(u"select sms, mobile, cid, sendisok, smsfrom, imsend, stime from sendsms"_s),
                 u"%1|M|2|-1|-1|0|2023/12/31 23:59:59 Hi|m|1|0|-1|0|2024/01/01 00:00:00"_s);
        QVERIFY(phrases_.deleterec(1) && phrases_.deleterec(1)); // gone already is no failure
        QVERIFY(!phrases_.getrec(1) && phrases_.getrec(2));
        const m_customer one = *customers_.getrec(2);
        QCOMPARE(one.birth + one.cname + one.sex + one.mobile + one.phone + one.memo, u"bnsmpr"_s);
        run(u"update customer set cid=40000, mobile='1', memo=NULL, phone=' a ' where cid=1"_s);
        run(u"update recvedsms set mobile='1'"_s);
        run(u"update parameters set port=40000"_s);
        QVERIFY(!received_.getrec(1) && !parameters_.getrec());
        run(u"update customer set cid=1 where cid=40000"_s);
        QCOMPARE(customers_.getrec(1)->memo + customers_.getrec(1)->phone, u"a"_s);
        Recordset rs;
        rs.set_ActiveConnection(strconn);
        QCOMPARE(error_of([&] { phrases_.searchsms(u"a"_s, rs); }), Kind::statement);
        QCOMPARE(error_of([&] { classes_.searchsms(u"a"_s, rs); }), Kind::statement);
        groups_.openrs(rs);
        connection_pool::clear();
        QVERIFY(QFile::remove(database_->path()));
        QCOMPARE(rs.Fields(u"gid"_s), 2); // by class, and detached
        QCOMPARE(add_to_each() + change_each(), 0);
    }

    void a_group_send_becomes_messages() {
        run(u"insert into customer (cid, mobile) values (1, '8'), (2, '2'), (3, '3''s'), (4, '4')"_s);
        run(u"insert into cusclass values (5, 'A')"_s);
        run(u"insert into cgroup (cid, ccid) values (1, 5), (4, 5), (4, 5), (9, 5), (2, 6)"_s);
        const auto messages = [] {
            QString made = rows(
                u"select mobile || cid || sms || sendisok || smsfrom || imsend || rtime || stime from sendsms order by smsid"_s);
            run(u"delete from sendsms"_s);
            return made;
        };
        const QString rest = u"%1Hi0-1-12023/12/31 23:59:592024/01/01 00:00:00"_s;
        const QDateTime later = now_.addSecs(1);
        QVERIFY(group_sends_.addrec(u"Hi"_s, 5, true, 0, now_, later));
        QCOMPARE(messages(),
                 rest.arg(u"81"_s) + u' ' + rest.arg(u"44"_s) + u' ' + rest.arg(u"44"_s));
        QVERIFY(group_sends_.addrec(u"Hi"_s, 7, true, 0, now_, later)); // nobody is in it
        QVERIFY(!group_sends_.addrec(u"it's"_s, 5, true, 0, now_, later));
        QVERIFY(!group_sends_.addrec(u"Hi"_s, 5, true, -1, now_, later)); // stops at the third
        QCOMPARE(messages(), rest.arg(u"81"_s) + u' ' + rest.arg(u"22"_s));
        QCOMPARE(
            rows(
                u"select cid || sms || imsend || isall || cname || (stime > rtime) from vwgsendsms"_s),
            u"5Hi-10A1 7Hi-101 5Hi-1-1A1"_s);
        QVERIFY(group_sends_.updaterec(1, 6, false, -1, later, now_));
        const m_gsendsms changed = *group_sends_.getrec(1);
        QVERIFY(changed.cid == 6 && !changed.imsend && changed.isall == -1 &&
                changed.sms.isEmpty() && changed.rtime == later && changed.stime == now_);
        QVERIFY(group_sends_.deleterec(1) && !group_sends_.getrec(1));

        run(u"delete from customer"_s);
        QStringList reports;
        for (const auto& last : {u"2000"_s, u"2001"_s}) {
            run(u"insert or ignore into customer (cid, mobile) with recursive n(i) as (values (1) union all select i+1 from n where i<"_s +
                last + u") select i, '1' from n"_s);
            QVERIFY(
                group_sends_.addrec(u"Hi"_s, 0, true, -1, now_, later, [&](auto done, auto all) {
                    reports.append(u"%1/%2"_s.arg(done).arg(all));
                }));
        }
        QCOMPARE(reports.join(u' '), u"0/2001 500/2001 1000/2001 1500/2001 2000/2001"_s);
    }

    void a_group_of_constants_is_loaded() {
        run(u"insert into CONSTS (no, value, dispvalue) values ('sex', '0', '男'), ('SEX', '1', '女'), ('x', '2', '?'), ('sex', '0', '无')"_s);
        constvalues sexes;
        sexes.load(strconn, u"sex"_s);
        QCOMPARE(sexes.Count(), 3);
        QVERIFY(sexes.Item(2)->dispvalue == u"女" && sexes.Item(u"0"_s)->dispvalue == u"男");
        QVERIFY(sexes.Item(u"2"_s) == nullptr && sexes.Item(0) == nullptr &&
                sexes.Item(4) == nullptr);
        QCOMPARE(error_of([&] { sexes.Add({}, {}, u"1"_s); }), Kind::duplicate_key);
        sexes.Remove(1);
        QVERIFY(sexes.Item(1)->dispvalue == u"女" && sexes.Item(u"0"_s) == nullptr);
    }

    void the_queue_takes_what_is_pending_due_and_new() {
        QDateTime clock = now_;
        outgoing_.now = [&clock] { return clock; };
        for (const int seconds : {-1, 0, 1}) {
            QVERIFY(outgoing_.addrec(u"m"_s, 9, u"x"_s, false, now_, now_.addSecs(seconds), true,
                                     true));
        }
        QVERIFY(
            outgoing_.addrec(u"m"_s, 9, u"x"_s, true, now_, now_.addDays(-1), true, true)); // sent
        m_sendsmses queue;
        const auto queued = [&queue](qsizetype index) {
            return queue.Item(index) == nullptr ? 0 : queue.Item(index)->smsid;
        };
        outgoing_.searchsms(queue);
        QVERIFY(queued(1) == 1 && queue.Count() == 1);
        clock = now_.addSecs(1); // the next year
        outgoing_.searchsms(queue);
        outgoing_.searchsms(queue);
        QVERIFY(queued(2) == 2 && queue.Count() == 2);
        QCOMPARE(error_of([&] { queue.Add({}, {}, {}, false, {}, 0, {}, 2, u"s5"_s); }),
                 Kind::duplicate_key);
        QVERIFY(queue.Item(u"s2"_s) == queue.Item(2) && queue.Item(u"s02"_s) == nullptr);
        queue.Remove(1); // pending still, so it comes again
        run(u"insert into sendsms (smsid, stime) values (32768, '2023/12/31 23:59:59')"_s);
        QCOMPARE(error_of([&] { outgoing_.searchsms(queue); }), Kind::conversion);
        QVERIFY(queued(1) == 2 && queued(2) == 1 && queue.Count() == 2);
    }
};

QTEST_GUILESS_MAIN(test_data)
#include "test_data.moc"
