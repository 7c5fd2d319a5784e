// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/frmref.h"
#include "tests/screens/screen_fixture.h"

#include <QCheckBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// What an operator does with each entity, and what comes of it. A step of "add" or "edit" is one
/// showing of the dialog: where the keyboard is and what is selected there, what its boxes show,
/// what is typed into them ("box=text"; a text behind a picker's name is the row that is picked,
/// none gives up), and the box that comes of saving it.
QJsonArray entities() {
    QFile file(QString::fromUtf8(ENTITIES));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array()
                                          : QJsonArray();
}

/// "长*200" stands for 200 of them.
QString expanded(const QJsonValue& value) {
    static const QRegularExpression repeated(u"(.)\\*(\\d+)"_s);
    QString text = value.toString();
    const auto match = repeated.match(text);
    return match.hasMatch() ? text.replace(match.captured(),
                                           match.captured(1).repeated(match.captured(2).toInt()))
                            : text;
}

person::boxes boxes_of(const QJsonValue& list) {
    person::boxes boxes;
    for (const QJsonValue one : list.toArray()) {
        boxes.append({expanded(one).section(u'=', 0, 0), expanded(one).section(u'=', 1)});
    }
    return boxes;
}

void fill_in(const QWidget& dialog, const QString& box, const QString& text) {
    if (dialog.findChild<QPushButton*>(box) != nullptr) {
        person::during_modal<frmref>([text](frmref& picker) {
            grid_of(picker).selectRow(text.toInt());
            person::click(picker, text.isEmpty() ? u"cmdcancel"_s : u"cmdok"_s);
        });
        person::click(dialog, box);
    } else if (dialog.findChild<QCheckBox*>(box) != nullptr) {
        person::click(dialog, box);
    } else {
        person::type(dialog, box, text);
    }
}

void expect_told(const QString& told, QMessageBox::StandardButton answer = QMessageBox::Ok) {
    const QString title = told.section(u'|', 0, 0);
    const auto icon = title == u"输入错误"_s ? QMessageBox::Critical : QMessageBox::Information;
    const bool asks = answer != QMessageBox::Ok && title.endsWith(u"成功"_s);
    person::expect_box(title, told.section(u'|', 1), asks ? answer : QMessageBox::Ok,
                       asks ? QMessageBox::NoIcon : icon);
}

/// Goes through the steps from this one on; the last one ends with a saved record.
void expect_steps(const QByteArray& dialog_class, const QJsonArray& steps, bool adds,
                  qsizetype at = 0) {
    person::expect_modal(dialog_class.constData(), [=](QWidget& dialog) {
        const QJsonValue step = steps[at];
        const bool is_last = at + 1 == steps.size();
        const QWidget& focus = *dialog.focusWidget();
        const QString place = focus.objectName() + u':' + focus.property("selectedText").toString();
        QTest::qCompare(place, step[u"at"_s].toString(place), "the keyboard's place", "expected",
                        __FILE__, __LINE__);
        for (const auto& [box, text] : boxes_of(step[u"shows"_s])) {
            QTest::qCompare(person::text_of(dialog, box), text, qPrintable(box), "expected",
                            __FILE__, __LINE__);
        }
        for (const auto& [box, text] : boxes_of(step[u"types"_s])) {
            fill_in(dialog, box, text);
        }
        const auto goes_on = is_last ? QMessageBox::No : QMessageBox::Yes;
        expect_told(step[u"told"_s].toString(), adds ? goes_on : QMessageBox::Ok);
        if (!is_last) {
            expect_steps(dialog_class, steps, adds, at + 1);
        }
        person::click(dialog, u"cmdok"_s);
    });
}

/// Deletes the marked row, which the database refuses at first.
void expect_deletion(const frmdatagrid& list, const QJsonObject& entity) {
    const QString count = u"select count(*) from "_s + entity[u"table"_s].toString();
    const int before = test_database::value(count).toInt();
    const QString key = list.value(list.controller().getidstring());
    test_database::execute(
        u"create trigger refuses before delete on %1 begin select raise(abort, ''); end"_s.arg(
            entity[u"table"_s].toString()));
    for (const auto& [told, left] :
         {std::pair(u"kept"_s, before), std::pair(u"deleted"_s, before - 1)}) {
        expect_told(entity[told].toString().replace(u'#', key));
        person::click(list, u"Delete"_s);
        QCOMPARE(test_database::value(count).toInt(), left);
        test_database::execute(u"drop trigger if exists refuses"_s);
    }
}

} // namespace

/// What each entity writes for itself: every box and its column, checks, messages.
class test_entities : public QObject {
    Q_OBJECT

    std::unique_ptr<screen_fixture> program_;

private slots:
    void init() { program_ = std::make_unique<screen_fixture>(); }

    void cleanup() {
        QVERIFY(person::all_answered());
        program_.reset();
        releaseuser();
    }

    void keeps_what_is_typed_data() {
        QTest::addColumn<QJsonObject>("entity");
        for (const QJsonValue entity : entities()) {
            QTest::newRow(qPrintable(entity[u"name"_s].toString())) << entity.toObject();
        }
    }

    void keeps_what_is_typed() {
        QFETCH(const QJsonObject, entity);
        const auto text = [&entity](const QString& key) { return expanded(entity[key]); };
        const auto stored = [&text] { return test_database::rows(text(u"rows"_s)).join(u' '); };
        for (const QJsonValue statement : entity[u"before"_s].toArray()) {
            test_database::execute(statement.toString());
        }
        const bool has_list = entity.contains(u"deleted"_s);
        const frmdatagrid* list = has_list ? &program_->list(text(u"menu"_s)) : nullptr;
        const QByteArray dialog = text(u"dialog"_s).toLatin1();
        if (entity.contains(u"add"_s)) {
            expect_steps(dialog, entity[u"add"_s].toArray(), true);
            person::click(*list, u"Add"_s);
        }
        const auto edit = [&] {
            has_list ? person::click(*list, u"Edit"_s)
                     : person::choose(program_->window, text(u"menu"_s));
        };
        QCOMPARE(has_list ? stored() : QString(), text(u"added"_s));
        if (entity.contains(u"edit"_s)) {
            expect_steps(dialog, entity[u"edit"_s].toArray(), false);
            edit();
            QCOMPARE(stored(), text(u"edited"_s));
        }
        if (has_list) {
            expect_deletion(*list, entity);
        }
        test_database::execute(u"delete from "_s + text(u"table"_s)); // by somebody else
        if (entity.contains(u"missing"_s)) {
            expect_told(text(u"missing"_s));
        }
        edit();
        if (has_list) {
            person::click(*list, u"refresh"_s);
            expect_told(text(u"kept"_s).replace(u'#', u'0'));
            person::click(*list, u"Delete"_s); // there is nothing
        }
    }

    void every_list_is_here() {
        QStringList known;
        for (const QJsonValue entity : entities()) {
            known += entity[u"menu"_s].toString();
        }
        for (const QAction* item : person::find<QMenu>(program_->window, u"mnuIN"_s).actions()) {
            QVERIFY2(known.contains(item->objectName()) || !item->isEnabled() ||
                         item->isSeparator(),
                     qPrintable(item->objectName()));
        }
    }
};

QTEST_MAIN(test_entities)
#include "test_entities.moc"
