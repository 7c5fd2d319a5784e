// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_customer.h"
#include "data/c_group.h"
#include "data/c_gsendsms.h"
#include "data/c_parameter.h"
#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"
#include "data/c_smsm.h"
#include "data/constvalues.h"
#include "data/dialled_number.h"
#include "data/schema.h"
#include "data/strconn.h"
#include "platform/database/connection_pool.h"
#include "tests/support/error_of.h"
#include "tests/support/test_database.h"

#include <QFile>
#include <QTest>

#include <ctime>
#include <optional>

using namespace Qt::StringLiterals;
using Kind = DataError::Kind;

/// What a first start makes, and what the access classes write and read; a fresh database a test.
class test_data : public QObject {
    Q_OBJECT

    std::optional<test_database> database_;
    QDateTime now_{{2023, 12, 31}, {23, 59, 59}};
    c_smsm phrases_;
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

private slots:
    void init() {
        database_.emplace();
        phrases_.connection = customers_.connection = groups_.connection = parameters_.connection =
            outgoing_.connection = received_.connection = group_sends_.connection = strconn;
    }

    void dials_data() {
        QTest::addColumn<QString>("dialled");
        const auto row = [](const char* written, const QString& dialled) {
            QTest::newRow(written) << dialled;
        };
        row("138-0013-8000", u"13800138000"_s);
        row(" +86\u00a0139\u30000013\u20098000", u"13900138000"_s);
        row("008613900138000", u"13900138000"_s);
        row("８６（139）00138000", u"13900138000"_s);
        row("【021】5555—0001", u"02155550001"_s);
        row("(+86)139\u200b0013\u2011800\uff0d0", u"13900138000"_s);
        row("+1 (212) 555-0100", u"+12125550100"_s);
        row("＋8621 5555 0001", u"+862155550001"_s);
        row("86139001380001", u"86139001380001"_s);
        row("100", u"100"_s);
        for (const char* none : {"", "12", "123456789012345678901", "无", "138'0", "1.39E+10",
                                 "138+0", "+", "138 转 8", "138;0"}) {
            row(none, {});
        }
    }

    void dials() {
        const QString dialled = dialled_number(QString::fromUtf8(QTest::currentDataTag()));
        QTEST(dialled, "dialled");
        QCOMPARE(dialled_number(dialled), dialled);
    }

    void a_text_with_a_quote_or_a_nul_is_no_literal() {
        QCOMPARE(error_of([] { return text_literal(u"it's"_s); }), Kind::text_literal);
        QCOMPARE(error_of([] { return text_literal(u"a\0"_s); }), Kind::text_literal);
    }

    void a_fresh_database_lets_the_operator_in() {
        QCOMPARE(rows(u"select * from users"_s), u"1|valdrine|"_s);
        QCOMPARE(rows(u"select userid, funid from rights natural join Functions"_s), u"1|1 1|2"_s);
        QCOMPARE(rows(u"select * from [Parameters]"_s), u"127.0.0.1|9100"_s);
        const QString views =
            u"v_smsm=smsmodels v_cusclass=cusclass v_customer=customer v_group=vwgroup v_sendsms=vwsendsms v_gsendsms=vwgsendsms v_recvedsms=vwrecvedsms vusers=users vrights=Functions,(select\t0\tSelected) operateview=vwoperate"_s;
        const QString columns_of =
            u"select group_concat(keyword) from viewitems join viewdef using (ViewNo) where ViewNo='%1'"_s;
        for (const QString& view : views.split(u' ')) {
            const QString columns = rows(columns_of.arg(view.section(u'=', 0, 0)));
            QVERIFY2(columns.contains(u','), qPrintable(view));
            QCOMPARE(rows(u"select %1 from %2 where 0"_s.arg(columns, view.section(u'=', 1))),
                     u""_s);
        }
    }

    void a_start_makes_tables_in_an_empty_file_alone() {
        QFile file(database_->path());
        for (const int size : {3, 0}) { // somebody else's file; a first start was killed
            connection_pool::clear();
            QVERIFY(file.resize(size));
            ensure_database(strconn);
            QCOMPARE(file.size() == 3, size == 3);
        }
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

    void pending_messages_queue_by_number() {
        run(u"insert into sendsms (smsid, stime, sendisok) values (40000, '2020', 0), (3, '2021', 0), (2, '2022', -1), (1, '2023', 0)"_s);
        m_sendsmses queue;
        QCOMPARE(error_of([&] { outgoing_.searchsms(queue); }), Kind::conversion);
        QVERIFY(queue.Count() == 2 && queue.Item(1)->smsid == 1 && queue.Item(2)->smsid == 3);
        QVERIFY(
            rows(u"explain query plan select * from vwsendsms where sendisok=0 and stime<'2030'"_s)
                .contains(u"sendsms_queue"_s));
    }

    // Compared with what filling it takes, for there is no pace that every machine keeps.
    void a_long_queue_is_forgotten_as_fast_as_it_was_filled() {
        m_sendsmses queue;
        const auto ticks = [](const auto& work) {
            const std::clock_t begin = std::clock();
            work();
            return std::clock() - begin;
        };
        const auto filling = ticks([&] {
            for (int id = 1; id <= 32000; ++id) {
                queue.Add({}, {}, {}, false, {}, 1, {}, static_cast<qint16>(id));
            }
        });
        QVERIFY(ticks([&] { queue.keep_first(2); }) < 5 * filling);
        QVERIFY(queue.Count() == 2 && queue.contains(2) && !queue.contains(3));
        queue.keep_first(3);
        QVERIFY(queue.Count() == 2 && queue.Item(u"s1"_s));
    }

    void views_join_what_belongs_together() {
        run(u"insert into customer (cname, mobile) values ('甲','138'),('乙','138'),(NULL,'')"_s);
        run(u"insert into cusclass (cname) values ('VIP')"_s);
        run(u"insert into cgroup (cid, ccid) values (2,1),(99,1),(1,99)"_s);
        run(u"insert into sendsms (mobile, cid) values ('138',2),('139',99),('',3)"_s);
        run(u"insert into recvedsms (mobile) values ('138'),('555'),('')"_s);
        QCOMPARE(rows(u"select gid, cid, cname, cusname, mobile from vwgroup"_s),
                 u"1|2|VIP|乙|138"_s);
        QCOMPARE(groups_.getrec(1)->cname + groups_.getrec(1)->cusname, u"VIP乙"_s);
        QCOMPARE(rows(u"select smsid, cname from vwsendsms order by 1"_s), u"1|乙 2| 3|"_s);
        QCOMPARE(rows(u"select smsrid, cid, cname from vwrecvedsms order by 1"_s),
                 u"1|1|甲 2|0| 3|0|"_s);
    }

    void a_write_touches_its_row_alone() {
        run(u"insert into parameters values ('x', 1)"_s);
        run(u"insert into sendsms (mobile, sendisok) values ('m', 0), ('n', 0)"_s);
        const m_recvedsms received{1, u"m"_s, u"好"_s, now_, true, {}, 0};
        const m_sendsms message{1, u"M"_s, 2, u"%1"_s, true, {}, now_, {}, true, true};
        for (int i = 0; i < 2; ++i) {
            QVERIFY(groups_.addrec(2, 1) && received_.add(received));
        }
        QVERIFY(groups_.updaterec(1, 1, 2) && received_.update(received) &&
                parameters_.updaterec(u"h"_s, -1));
        QVERIFY(outgoing_.update(message) && outgoing_.sended(2));
        QCOMPARE(rows(u"select * from parameters"_s), u"h|-1 h|-1"_s); // every row
        QCOMPARE(rows(u"select mobile, readed from recvedsms"_s), u"m|1 m|0"_s);
        QCOMPARE(rows(u"select * from cgroup"_s), u"1|1|2 2|2|1"_s);
        QCOMPARE(rows(u"select mobile, cid, sms, stime, sendisok from sendsms"_s),
                 u"M|2|%1|2023/12/31 23:59:59|0 n|NULL|NULL|NULL|-1"_s);
    }

    void a_record_is_read_whole_or_not_at_all() {
        run(u"insert into customer values (1, 'b', 'n', 's', 'm', ' p ', NULL), (40000, '', '', '', 'x', '', '')"_s);
        const m_customer one = *customers_.getrec(1);
        QCOMPARE(one.birth + one.cname + one.sex + one.mobile + one.phone + one.memo, u"bnsmp"_s);
        run(u"insert into recvedsms (mobile, rtime) values ('x', '2024/01/31'), ('m', '2024/01/31')"_s);
        QVERIFY(!received_.getrec(1) && received_.getrec(2)); // the first one's key is too large
        run(u"update parameters set port=40000"_s);
        QVERIFY(!parameters_.getrec() && !phrases_.getrec(1));
        Recordset rs;
        rs.set_ActiveConnection(strconn);
        run(u"insert into cgroup values (1, 1, 6), (2, 1, 5)"_s);
        run(u"insert into cusclass values (5, 'A'), (6, 'B')"_s);
        groups_.openrs(rs);
        connection_pool::clear();
        QVERIFY(QFile::remove(database_->path()));
        QCOMPARE(rs.Fields(u"gid"_s), 2); // by class, and detached
        QVERIFY(!groups_.addrec(2, 1) && !groups_.updaterec(1, 1, 2) && !customers_.getrec(1));
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
        QCOMPARE(messages(), rest.arg(u"81"_s) + (u' ' + rest.arg(u"44"_s)).repeated(2));
        QVERIFY(group_sends_.addrec(u"Hi"_s, 7, true, 0, now_, later)); // nobody is in it
        QVERIFY(!group_sends_.addrec(u"it's"_s, 5, true, 0, now_, later));
        QVERIFY(!group_sends_.addrec(u"Hi"_s, 5, true, -1, now_, later)); // stops at the third
        QCOMPARE(messages(), rest.arg(u"81"_s) + u' ' + rest.arg(u"22"_s));
        QCOMPARE(
            rows(
                u"select cid || sms || imsend || isall || cname || (stime > rtime) from vwgsendsms"_s),
            u"5Hi-10A1 7Hi-101 5Hi-1-1A1"_s);
        QVERIFY(group_sends_.update({1, 6, now_, false, later, {}, -1, {}}));
        QCOMPARE(rows(u"select cid, imsend, isall, rtime > stime from gsendsms where gsid=1"_s),
                 u"6|0|-1|1"_s);

        run(u"delete from customer"_s);
        run(u"insert into customer (cid, mobile) with recursive n(i) as (values (1) union all select i+1 from n where i<2001) select i, '1' from n"_s);
        QStringList reports;
        QVERIFY(group_sends_.addrec(u"Hi"_s, 0, true, -1, now_, later,
                                    [&](auto done) { reports.append(QString::number(done)); }));
        QCOMPARE(reports.join(u' '), u"0 500 1000 1500 2000"_s);
        QVERIFY(group_sends_.count_addressees(5, -1) == 2001 &&
                group_sends_.count_addressees(5, 0) == 4);
    }

    void a_group_of_constants_is_loaded() {
        run(u"insert into CONSTS (no, value, dispvalue) values ('sex', '0', '男'), ('SEX', '1', '女'), ('x', '2', '?'), ('sex', '0', '无')"_s);
        constvalues sexes;
        sexes.load(strconn, u"sex"_s);
        QCOMPARE(error_of([&] { sexes.Add({}, {}, u"1"_s); }), Kind::duplicate_key);
        QCOMPARE(sexes.Item(2)->dispvalue + sexes.Item(u"0"_s)->dispvalue, u"女男"_s);
        QVERIFY(!sexes.Item(u"2"_s) && !sexes.Item(0) && !sexes.Item(4));
    }
};

QTEST_GUILESS_MAIN(test_data)
#include "test_data.moc"
