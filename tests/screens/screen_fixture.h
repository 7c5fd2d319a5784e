// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/client.h"
#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "operators/rsclsuser.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/person.h"
#include "tests/support/test_database.h"

#include <QHeaderView>
#include <QMdiSubWindow>

/// The whole program on a database of its own: operator 1 is logged in, no gateway answers unless
/// the port of one is given.
class screen_fixture {
    test_database database_;
    client program_;
    int gateway_port_;

public:
    explicit screen_fixture(int gateway_port = 1) : gateway_port_(gateway_port) {}

    frmMain& window = start();
    QMdiArea& area = *window.findChild<QMdiArea*>();

    /// Opens the list window of a menu item.
    [[nodiscard]] frmdatagrid& list(const QString& item) {
        person::choose(window, item);
        return *qobject_cast<frmdatagrid*>(area.activeSubWindow()->widget());
    }

private:
    frmMain& start() {
        test_database::execute(QStringLiteral("update parameters set port=%1").arg(gateway_port_));
        set_up_toolkit();
        curuser = std::make_unique<rsclsuser>();
        curuser->set_userid(1);
        curuser->set_username(QStringLiteral("valdrine"));
        frmMain& opened = program_.open_main_window();
        opened.resize(900, 600);
        return opened;
    }
};

[[nodiscard]] inline data_grid& grid_of(const QWidget& window) {
    return *window.findChild<data_grid*>();
}

inline void click_heading(const data_grid& grid, int column) {
    const QHeaderView& header = *grid.horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + 20, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

inline void expect_refusal(const QString& text, const QString& title = QStringLiteral("输入错误")) {
    person::expect_box(title, text, QMessageBox::Ok, QMessageBox::Critical);
}

/// Puts a received message into the database.
inline void store_received(int key, const QString& text) {
    const auto row =
        QStringLiteral("insert into recvedsms values (%1, '139', '%2', '2024/01/31 08:00:00', 0)");
    test_database::execute(row.arg(QString::number(key), text));
}

/// Puts phrases "text 7", "text 14" … into the database, under the keys from 1 to 60.
inline void store_60_phrases() {
    test_database::execute(
        QStringLiteral("with recursive n(i) as (select 1 union all select i+1 from n where i<60) "
                       "insert into smsmodels select i, 'text ' || (i*7%60) from n"));
}

/// What a window's grid shows in a column, its rows joined by blanks.
[[nodiscard]] inline QString column_of(const QWidget& window, int column) {
    const QAbstractItemModel& model = *grid_of(window).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts.join(u' ');
}
