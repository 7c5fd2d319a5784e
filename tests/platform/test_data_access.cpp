// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/connection_pool.h"
#include "platform/database/exclusive_lease.h"
#include "platform/database/recordset.h"
#include "tests/support/error_of.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Kind = DataError::Kind;

/// Record sets, statements and connections on a small table of people.
class test_data_access : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QString connection_ = u"PROVIDER=x;Data Source=%1\\a; b.mdb;"_s.arg(folder_.path());
    const QFileDevice::Permissions owner_may_ = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QString path_ = folder_.filePath(u"a; b.mdb"_s);

    static void make_people(const QString& path) {
        open_database(path, physical_database::open_mode::create)->execute_script(R"sql(
CREATE TABLE people (id INTEGER PRIMARY KEY, name, born, score REAL, note TEXT DEFAULT 'new');
INSERT INTO people VALUES (1, '王五', '2024/01/31 08:00:00', 10, 'it'),
    (2, 'bob', '1999-12-31 00:00:00', 9, '7'), (3, '李四', NULL, NULL, ''),
    (4, 'BOB', '2000/01/01', 100, '1'), (10, '阿三', 'soon', -1.5, NULL);)sql");
    }

    [[nodiscard]] Recordset open(const QString& source) const {
        Recordset rs;
        rs.LockType = Recordset::LockTypeEnum::optimistic;
        rs.set_ActiveConnection(connection_);
        rs.Open(source);
        return rs;
    }

    /// The first column in the set's present order.
    static QString texts(const Recordset& rs) {
        QStringList texts;
        for (qsizetype row = 0; row < rs.RecordCount(); ++row) {
            texts.append(rs.store().text(rs.store_row(row), 0));
        }
        return texts.join(u' ');
    }

    QString run(const QString& statement) { return texts(open(statement)); }

private slots:
    void init() { make_people(path_); }

    void cleanup() {
        connection_pool::clear();
        QFile::remove(path_);
    }

    void a_set_without_rows_or_connection_says_so() {
        Recordset rs = open(u"select * from people where id=99"_s);
        QVERIFY(rs.Bof() && rs.Eof());
        QCOMPARE(error_of([&] { rs.MoveFirst(); }), Kind::cursor);
        QCOMPARE(error_of([&] { rs.Find(u"id=1"_s); }), Kind::cursor);
        QCOMPARE(error_of([&] { return rs.Fields(u"id"_s); }), Kind::cursor);
        rs.Close();
        QCOMPARE(error_of([&] { return rs.Eof(); }), Kind::cursor);
        rs.Open(u"people"_s);
        rs.detach();
        rs.set_Fields(u"NAME"_s, u"x"_s);
        QCOMPARE(error_of([&] { rs.Update(); }), Kind::cursor);
    }

    void finds_and_sorts() {
        Recordset rs = open(u"people"_s);
        const auto found = [&rs](const QString& criterion, int from = 0) {
            rs.set_position(from);
            rs.Find(criterion);
            return rs.position();
        };
        QCOMPARE(found(u"name= 'Bob'"_s, 1), 1); // where it stands already
        QCOMPARE(found(u"[NAME]='bob'"_s, 2), 3);
        QCOMPARE(found(u"id = +10"_s), 4);
        QCOMPARE(found(u"note=''"_s, 3), 5); // Null is not empty
        rs.set_Sort(u"name"_s);
        QCOMPARE(texts(rs), u"10 3 1 2 4"_s); // by pinyin
        for (const QString& text : {u"name='it's'"_s, u"name=bob"_s, u"nobody='x'"_s, u"id=1.2.3"_s,
                                    u"id=1 or id=2"_s, u"name<>'x'"_s, u"name='x"_s, u","_s}) {
            QCOMPARE(error_of([&] { rs.Find(text); }), Kind::criterion);
            QCOMPARE(error_of([&] { rs.set_Sort(text); }), Kind::criterion);
        }
    }

    void stores_only_the_columns_that_were_changed() {
        Recordset rs = open(u"Select * From people where id>1"_s);
        run(u"update people set score=77 where id=3"_s);
        rs.set_Sort(u"name"_s);
        rs.Find(u"id=3"_s);
        rs.set_Fields(u"NAME"_s, u"it's"_s);
        rs.Update();
        rs.AddNew();
        rs.set_Fields(u"name"_s, u"钱七"_s);
        rs.Update();
        rs.set_Fields(u"score"_s, 2.5);
        rs.MoveFirst(); // which leaves it
        QCOMPARE(run(u"select name || score || note from people where id in (3,11)"_s),
                 u"it's77.0 钱七2.5new"_s);
        QCOMPARE(run(u"select id from people"_s), u"1 2 3 4 10 11"_s);
    }

    void a_transaction_locks_out_writers_until_it_is_rolled_back() {
        Connection connection;
        connection.ConnectionString = connection_;
        connection.Open();
        {
            const transaction undone(connection.database());
            connection.Execute(u"delete from people"_s);
            QCOMPARE(error_of([this] { run(u"delete from people"_s); }), Kind::locked);
            QCOMPARE(run(u"select id from people"_s), u"1 2 3 4 10"_s);
        }
        QCOMPARE(run(u"select id from people"_s), u"1 2 3 4 10"_s);
        run(u"delete from people where id=1"_s); // on the same physical connection
        QCOMPARE(run(u"select id from people"_s), u"2 3 4 10"_s);
    }

    void what_was_written_is_on_disk_and_folded_into_the_file() {
        QCOMPARE(run(u"pragma journal_mode"_s) + run(u"pragma synchronous"_s), u"wal2"_s);
        for (const QString& cut : {u"delete from people\0 where id=1"_s, u"select 1\0"_s}) {
            QCOMPARE(error_of([&] { run(cut); }), Kind::statement);
        }
        run(u"delete from people where id=1"_s);
        QVERIFY(QFileInfo(path_ + u"-wal"_s).size() > 0);
        auto* folding = QCoreApplication::instance()->findChild<QTimer*>();
        QVERIFY(folding != nullptr && folding->isActive());
        folding->start(0);
        QTRY_COMPARE(QFileInfo(path_ + u"-wal"_s).size(), 0);
    }

    void a_replaced_file_is_noticed() {
        run(u"delete from people where id=1"_s); // leaves a connection in the pool
        connection_pool::fold_logs();            // as happens by itself a moment later
        make_people(path_ + u'2');
        QVERIFY(QFile::remove(path_) && QFile::rename(path_ + u'2', path_));
        run(u"delete from people where id=2"_s);
        connection_pool::clear();
        QCOMPARE(run(u"select id from people"_s), u"1 3 4 10"_s);
    }

    void another_program_does_not_take_the_log_away() {
        run(u"delete from people where id=1"_s);
        const auto second = open_database(path_); // must leave the locks of the first alone
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {u"--visit"_s, path_}),
                 0);
        QVERIFY(QFile::exists(path_ + u"-wal"_s));
    }

    void whoever_may_write_the_file_may_take_its_lease() {
        const QString lease = path_ + u"-lease"_s;
        const auto accesses = [](const QString& path) {
            const QFileInfo file(path);
            return std::tuple(file.ownerId(), file.groupId(), int(file.permissions()));
        };
        QProcess::execute(u"chown"_s, {u"12345:12345"_s, path_}); // done for root alone
        for (const QFileDevice::Permission others :
             {QFileDevice::WriteGroup, QFileDevice::ReadOther}) { // made, then mended
            QFile::setPermissions(path_, owner_may_ | others);
            QVERIFY(exclusive_lease(path_).try_take());
            QCOMPARE(accesses(lease), accesses(path_));
            QVERIFY(exclusive_lease::unwritable_file(path_).isEmpty());
            QFile::setPermissions(lease,
                                  QFileDevice::ReadOwner); // as a file read-only once left it
            QCOMPARE(exclusive_lease::unwritable_file(path_), lease);
        }
        QFile::setPermissions(path_, QFileDevice::ReadOwner);
        QCOMPARE(exclusive_lease(path_).try_take(), QFileInfo(path_).isWritable()); // root may
    }

    void a_lease_that_can_only_be_read_is_not_taken() {
        if (!QFileInfo(u"/"_s).isWritable()) {
            QSKIP("its owner could write it again; only root can play another user");
        }
        const QString lease = path_ + u"-lease"_s;
        QVERIFY(exclusive_lease(path_).try_take());
        QFile::setPermissions(folder_.path(), QFileDevice::Permissions(0x7755));
        QFile::setPermissions(path_, QFileDevice::Permissions(0x6666));
        QFile::setPermissions(lease, QFileDevice::Permissions(0x6444));
        const auto lease_by_nobody = [this] {
            return QProcess::execute(u"setpriv"_s, {u"--reuid=65534"_s, u"--clear-groups"_s,
                                                    QCoreApplication::applicationFilePath(),
                                                    u"--lease"_s, path_});
        };
        QCOMPARE(lease_by_nobody(), 0);
        QFile::setPermissions(lease, QFileDevice::Permissions(0x6666));
        QCOMPARE(lease_by_nobody(), 1);
    }

    void a_lease_that_cannot_be_taken_is_told_once() {
        const QString blocked = folder_.filePath(u"c.mdb"_s);
        QVERIFY(QDir(folder_.path()).mkdir(u"c.mdb-lease"_s) && QFile::copy(path_, blocked));
        QProcess visitor;
        visitor.start(QCoreApplication::applicationFilePath(), {u"--lease"_s, blocked});
        QVERIFY(visitor.waitForFinished());
        const QString told = u"the lease of %1 cannot be taken: unable to open database file\n"_s;
        QCOMPARE(visitor.readAllStandardError(), told.arg(blocked).toUtf8());
    }
};

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--visit") { // plays another program that uses the file
        open_database(arguments.value(2))->execute(u"select * from people"_s);
        return 0;
    }
    if (arguments.value(1) == u"--lease") { // asks for the lease twice
        exclusive_lease lease(arguments.value(2));
        return lease.try_take() || lease.try_take() ? 1 : 0;
    }
    test_data_access tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "test_data_access.moc"
