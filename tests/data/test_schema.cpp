// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"
#include "data/schema_steps.h"
#include "data/strconn.h"
#include "data/tables.h"
#include "platform/database/connection_pool.h"
#include "platform/database/physical_database.h"
#include "tests/support/error_of.h"
#include "tests/support/test_database.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using Kind = DataError::Kind;

/// Databases of offices that were there before this version.
class test_schema : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"sms.old.mdb"_s);

    [[nodiscard]] QString run(const QString& statement) const {
        const row_store rows = open_database(path_)->rows(statement);
        QStringList fields;
        for (qsizetype row = 0; row < rows.rows(); ++row) {
            for (qsizetype column = 0; column < rows.columns().size(); ++column) {
                fields.append(rows.text(row, column));
            }
        }
        return fields.join(u'|');
    }

private slots:
    void init() {
        QFile office(QString::fromUtf8(OFFICE));
        QVERIFY(office.open(QIODevice::ReadOnly));
        open_database(path_, physical_database::open_mode::create)
            ->execute_script(office.readAll().constData());
        strconn = make_strconn(folder_.path());
    }

    void cleanup() {
        connection_pool::clear();
        for (const QString& name : QDir(folder_.path()).entryList(QDir::Files)) {
            QFile::remove(folder_.filePath(name));
        }
    }

    void an_old_office_comes_out_like_a_fresh_one() {
        const QString schema = u"select name, sql from sqlite_master order by name, sql"_s;
        const QString lists =
            u"select * from viewdef natural join viewitems where keyword<>'cname' order by ViewNo collate nocase, pos"_s;
        const QString office =
            u"select * from customer natural join (select cid, gid, ccid from cgroup), sendsms, recvedsms"_s;
        const QString before = run(office);
        ensure_database(strconn);
        QCOMPARE(run(office), before);
        QCOMPARE(run(u"insert into customer (mobile) values ('1') returning cid"_s), u"10"_s);
        QCOMPARE(run(u"select Width, Visible from viewitems where Width=3333"_s), u"3333|0"_s);
        const QString upgraded = run(schema);
        const auto without_numbers = [this, &lists] {
            return run(QString(lists).replace(
                u"*"_s,
                u"ViewNo, viewName, other, keyword, caption, pos, Width, HAlignment, TAlignment, DataType, FormatType"_s));
        };
        const QString upgraded_lists = without_numbers();
        cleanup();
        ensure_database(strconn);
        QCOMPARE(upgraded, run(schema));
        QCOMPARE(upgraded_lists, without_numbers());
    }

    /// What the columns mean is said beside the schema.
    void every_column_is_described() {
        ensure_database(strconn);
        QStringList described;
        for (const table_description& table : all_tables()) {
            for (const table_column& column : table.columns) {
                described.append(u"%1.%2|%3|%4|%5"_s.arg(
                    table.name, column.name, column.is_number() ? u"INTEGER" : u"TEXT",
                    column.kind == column_kind::key ? u"1" : u"0",
                    column.needs_value ? u"1" : u"0"));
            }
        }
        const auto database = open_database(path_);
        QStringList stored = database->column(
            u"select m.name || '.' || c.name || '|' || c.type || '|' || c.pk || '|' || c.\"notnull\" from sqlite_master m, pragma_table_info(m.name) c where m.type='table' and m.name not like 'sqlite%' "_s);
        described.sort();
        stored.sort();
        QCOMPARE(described, stored);
        for (const table_description& table : all_tables()) { // pointing somewhere
            for (const table_column& column : table.columns) {
                const auto* target = find_table(column.target);
                QCOMPARE(target != nullptr, !column.target.isEmpty());
                QVERIFY(target == nullptr || target < &table);
            }
        }
    }

    void a_copy_is_kept_from_before() {
        const QString older = path_ + u"-before-step-1"_s;
        QVERIFY(QFile::copy(path_, older));
        QCOMPARE(upgrade_database(path_), 1);
        QVERIFY(!QFile::exists(older));
        const auto copy = open_database(path_ + u"-before-step-2"_s);
        QCOMPARE(copy->schema_version(), 0);
        QCOMPARE(copy->column(u"select cname from customer"_s),
                 (QStringList{u"王五"_s, u"李四"_s}));
        const QStringList files = QDir(folder_.path()).entryList(QDir::Files);
        QCOMPARE(upgrade_database(path_), newest_schema_version()); // once is enough
        QCOMPARE(QDir(folder_.path()).entryList(QDir::Files), files);
    }

    void a_newer_database_is_left_alone() {
        open_database(path_)->set_schema_version(newest_schema_version() + 1);
        const QString before = run(u"select sql from sqlite_master"_s);
        QCOMPARE(error_of([] { ensure_database(strconn); }), Kind::newer_version);
        QCOMPARE(run(u"select sql from sqlite_master"_s), before);
        QVERIFY(!QFile::exists(path_ + u"-before-step-2"_s));
    }

    void an_upgrade_that_cannot_be_written_changes_nothing() {
        const auto other = open_database(path_);
        other->begin(physical_database::purpose::writing);
        QCOMPARE(error_of([] { ensure_database(strconn); }), Kind::locked);
        other->rollback();
        QCOMPARE(open_database(path_)->schema_version(), 0);
        ensure_database(strconn);
        QCOMPARE(open_database(path_)->schema_version(), newest_schema_version());
    }
};

QTEST_GUILESS_MAIN(test_schema)
#include "test_schema.moc"
