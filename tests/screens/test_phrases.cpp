// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/strconn.h"
#include "directory/vc_smsm.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/test_database.h"
#include "tests/support/user.h"

#include <QMdiArea>
#include <QMdiSubWindow>

using namespace Qt::StringLiterals;

/// The loops that every entity shares, on the entity that is their model.
class test_phrases : public QObject {
    Q_OBJECT

    test_database database_;
    c_smsm access_;
    QMdiArea windows_;
    vc_smsm screen_{windows_};

private slots:
    void initTestCase() {
        access_.connection = strconn;
        screen_.records = &access_;
        windows_.resize(900, 600);
        windows_.show();
    }

    void cleanup() { test_database::execute(u"delete from smsmodels"_s); }

    void adds_until_the_operator_stops() {
        user::during_modal<frmSmsm>([](frmSmsm& dialog) {
            QCOMPARE(user::text_of(dialog, u"txtMID"_s), u"0"_s);
            user::type(dialog, u"txtText"_s, u"节日快乐"_s);
            user::click(dialog, u"cmdok"_s);
        });
        user::expect_box(u"保存成功"_s, u"成功创建一个短语信息，继续创建吗？ "_s, QMessageBox::Yes,
                         QMessageBox::NoIcon);
        user::during_modal<frmSmsm>([](frmSmsm& dialog) {
            QCOMPARE(user::text_of(dialog, u"txtText"_s), u"节日快乐"_s);
            user::type(dialog, u"txtText"_s, u"it's"_s);
            user::click(dialog, u"cmdok"_s);
        });
        user::expect_box(u"不能保存 "_s, u"输入错误，不能保存短语信息，请检查！"_s);
        user::during_modal<frmSmsm>([](frmSmsm& dialog) {
            QCOMPARE(user::text_of(dialog, u"txtText"_s), u"it's"_s);
            user::press_key(dialog, Qt::Key_Escape);
        });
        QVERIFY(!screen_.createrec());
        QVERIFY(user::all_answered());
        QCOMPARE(test_database::rows(u"select text from smsmodels"_s), QStringList{u"节日快乐"_s});
    }
};

QTEST_MAIN(test_phrases)
#include "test_phrases.moc"
