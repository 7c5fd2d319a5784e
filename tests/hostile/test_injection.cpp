// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmLogin.h"
#include "data/constvalues.h"
#include "data/literals.h"
#include "data/strconn.h"
#include "listview/frmFind.h"
#include "listview/frmSort.h"
#include "listview/frmconduser.h"
#include "operators/frmuser.h"
#include "operators/usermaintain.h"
#include "tests/screens/screen_fixture.h"
#include "tests/support/error_of.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using text = const QString&;

namespace {

/// The hostile texts, the ways they take, and what lies in the database before.
QJsonObject data() {
    QFile file(QString::fromUtf8(INJECTION));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

bool is_clean(text t) {
    return !t.contains(u'\'') && !t.contains(QChar::Null);
}

/// Half a surrogate pair is no character: UTF-8 holds a question mark for it.
QString as_stored(text t) {
    return QString::fromUtf8((u'|' + t).toUtf8()).sliced(1);
}

/// Every table, view and row there is.
QSet<QString> everything() {
    QStringList lines = test_database::rows(u"select name || ifnull(sql, '') from sqlite_master"_s);
    for (text table : test_database::rows(
             u"select name from sqlite_master where type='table' and name<>'sqlite_sequence'"_s)) {
        for (text row : test_database::rows(u"select * from [%1]"_s.arg(table))) {
            lines.append(table + u'|' + row);
        }
    }
    return {lines.begin(), lines.end()};
}

void fill_in(const QDialog& dialog, const person::boxes& texts, bool is_refused) {
    person::type(dialog, texts);
    if (is_refused) {
        person::during_modal<QMessageBox>([](QMessageBox& refusal) { refusal.accept(); });
    }
    person::click(dialog, u"cmdOK"_s);
}

bool log_in(text name, text password, bool is_known) {
    frmLogin login;
    login.show();
    fill_in(login, {{u"txtUserName"_s, name}, {u"txtPassword"_s, password}}, !is_known);
    return login.loginok;
}

bool save_operator(text name, bool (&saves)(const frmuser&)) {
    if (!is_clean(name)) {
        person::expect_box(u"不能保存"_s, u"输入错误，操作员不能保存！"_s);
    }
    frmuser dialog;
    dialog.record = {u"2"_s, name, u'p' + name + u'p', {}};
    return saves(dialog);
}

/// The program, and a row in every table.
struct stage : screen_fixture {
    const QDateTime now{{2024, 1, 31}, {8, 0}};
    c_smsm phrases;
    c_cusclass classes;
    c_customer customers;
    c_parameter parameters;
    c_sendsms outgoing;
    c_gsendsms group_sends;
    c_recvedsms received;

    /// By each way that a text can come in: whether it was stored, or used as it must be.
    const QHash<QString, std::function<bool(text)>> roads{
        {u"phrase"_s, [this](text t) { return phrases.addrec(t); }},
        {u"changed phrase"_s, [this](text t) { return phrases.updaterec(t, 1); }},
        {u"unused"_s, [this](text t) { return parameters.addrec(t); }},
        {u"class"_s, [this](text t) { return classes.addrec(t); }},
        {u"changed class"_s, [this](text t) { return classes.updaterec(t, 7); }},
        {u"customer"_s, [this](text t) { return customers.addrec(t, t, t, t, t, t); }},
        {u"changed customer"_s,
         [this](text t) { return customers.updaterec(1, t, t, t, t, t, t); }},
        {u"gateway"_s, [this](text t) { return parameters.updaterec(t, 9); }},
        {u"message"_s, [this](text t) { return outgoing.addrec(t, 5, t, {}, now, now, {}, {}); }},
        {u"changed message"_s, [this](text t) { return outgoing.updaterec(1, t, 5, t, now); }},
        {u"received"_s, [this](text t) { return received.addrec(t, t, now, {}); }},
        {u"group send"_s, [this](text t) { return group_sends.addrec(t, 7, {}, 0, now, now); }},
        {u"addressee"_s, [this](text) { return group_sends.addrec(u"x"_s, 7, {}, 0, now, now); }},
        {u"operator"_s, [](text t) { return save_operator(t, usermaintain::insertuser); }},
        {u"changed operator"_s, [](text t) { return save_operator(t, usermaintain::updateuser); }},
        {u"login"_s, [](text t) { return !log_in(t, {}, false) && !log_in(u"w"_s, t, false); }},
        {u"known login"_s, [](text t) { return log_in(t, t, is_clean(t)) == is_clean(t); }},
        {u"filter"_s, [this](text t) { return is_no_filter(t); }},
        {u"found"_s, [this](text t) { return use_list(t, t.contains(u'\''), false); }},
        {u"stored column"_s, [this](text) { return use_list(u"b"_s, true, true); }},
        {u"constants"_s, [](text t) {
             return is_clean(t) != error_of([&] { constvalues().load(strconn, t); }).has_value();
         }}};

    stage() {
        phrases.connection = classes.connection = customers.connection = parameters.connection =
            outgoing.connection = group_sends.connection = received.connection = strconn;
        for (const QJsonValue row : data()[u"stage"_s].toArray()) {
            test_database::execute(row.toString());
        }
    }

    bool is_no_filter(text t) {
        vc_smsm any(area, phrases);
        frmconduser dialog({.userid = 0, .start = now, .end = now}, any);
        fill_in(dialog, {{u"txtsdate"_s, t}}, true);
        return !dialog.confirmed;
    }

    /// Finds in the second column of a list and sorts by it, each with the expected outcome.
    bool use_list(text wanted, bool find_fails, bool sort_fails) {
        frmdatagrid& opened = list(u"mnuCreTech"_s);
        person::during_modal<frmFind>([&](frmFind& dialog) {
            fill_in(dialog, {{u"txtV"_s, as_stored(wanted)}}, false);
        });
        person::during_modal<frmSort>([](frmSort& dialog) { fill_in(dialog, {}, false); });
        const bool is_right = error_of([&] { opened.fFind(); }).has_value() == find_fails &&
                              (find_fails || opened.value(u"mid"_s) == u"2") &&
                              error_of([&] { opened.fSort(); }).has_value() == sort_fails;
        static_cast<void>(error_of([&] { opened.FsaveLayout(); }));
        area.closeAllSubWindows();
        return is_right;
    }
};

/// The rows with the text for @ and for # the key that the next row gets; those that can be
/// written.
QSet<QString> rows_of(text t, QStringList rows) {
    QSet<QString> written;
    for (QString& row : rows) {
        if (is_clean(t) || !row.contains(u'@')) {
            const QString next =
                u"select ifnull(max(seq), 0) + 1 from sqlite_sequence where name=%1"_s;
            const QVariant key = test_database::value(next.arg(literal(row.section(u'|', 0, 0))));
            written.insert(as_stored(row.replace(u'#', key.toString()).replace(u'@', t)));
        }
    }
    return written;
}

} // namespace

/// No text changes what a statement means, by whichever way it comes.
class test_injection : public QObject {
    Q_OBJECT

private slots:
    static void keeps_to_its_row_data() {
        QTest::addColumn<QString>("lies");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QStringList>("texts");
        // A dialog takes long and sees only the first texts, which are one of each kind.
        const QStringList texts = data()[u"texts"_s].toVariant().toStringList();
        for (const QJsonValue road : data()[u"roads"_s].toArray()) {
            QTest::newRow(qPrintable(road[u"name"_s].toString()))
                << road[u"lies"_s].toString() << road[u"rows"_s].toString()
                << texts.first(road[u"texts"_s].toInt(static_cast<int>(texts.size())));
        }
    }

    static void keeps_to_its_row() {
        QFETCH(const QString, lies); // first lays the text, @, into the database
        QFETCH(const QString, rows); // are then new or changed
        QFETCH(const QStringList, texts);
        const stage program;
        for (text t : texts) {
            if (!lies.isEmpty()) {
                const QString value =
                    u"cast(x'%1' as text)"_s.arg(QString::fromLatin1(t.toUtf8().toHex()));
                test_database::execute(QString(lies).replace(u'@', value));
            }
            const QSet<QString> expected = rows_of(t, rows.split(u'\n', Qt::SkipEmptyParts));
            const QSet<QString> before = everything();
            const bool is_right = program.roads[QString::fromLatin1(QTest::currentDataTag())](t);
            const QSet<QString> after = everything();
            QVERIFY2(is_right == (rows.isEmpty() || is_clean(t)), qPrintable(t));
            QCOMPARE(after - before, expected);
            QCOMPARE((before - after).size(), rows.contains(u'#') ? 0 : expected.size());
        }
        QVERIFY(person::all_answered());
    }
};

QTEST_MAIN(test_injection)
#include "test_injection.moc"
