// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bare_list.h"
#include "bench/bench_store.h"
#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/paint_watch.h"

#include "app/client.h"
#include "app/frmMain.h"
#include "operators/rsclsuser.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The program's list window of customers, worked as a user does.
class list_side {
public:
    explicit list_side(const bench_store& store) {
        store.use();
        curuser = std::make_unique<rsclsuser>();
        curuser->set_userid(1);
        window_ = &program_.open_main_window();
        window_->resize(1000, 700);
    }

    // Milliseconds from the command to the paint of the grid.
    double open() {
        for (QMdiSubWindow* list : window_->findChildren<QMdiSubWindow*>()) {
            delete list;
        }
        return painted_after([this] { press(u"mnuProject"_s); });
    }
    double refresh() {
        return painted_after([this] { press(u"refresh"_s); });
    }
    double sort(int column) {
        return confirmed(u"sort"_s, [&](QWidget& dialog) { choose(dialog, column); });
    }
    double find(int column, const QString& value) {
        auto* grid = window_->findChild<QTableView*>(u"DataGrid1"_s);
        grid->setCurrentIndex(grid->model()->index(0, 0));
        return confirmed(u"find"_s, [&](QWidget& dialog) {
            choose(dialog, column);
            dialog.findChild<QLineEdit*>(u"txtV"_s)->setText(value);
        });
    }

private:
    void press(const QString& command) { window_->findChild<QAction*>(command)->trigger(); }

    static void choose(QWidget& dialog, int column) {
        dialog.findChild<QComboBox*>(u"ComboColName"_s)->setCurrentIndex(column);
    }

    static double painted_after(const std::function<void()>& command) {
        paint_watch watch("data_grid");
        return milliseconds([&] {
            command();
            watch.wait();
        });
    }

    /// From the click on the dialog's button on.
    double confirmed(const QString& command, const std::function<void(QWidget&)>& fill) {
        paint_watch watch("data_grid");
        QElapsedTimer time;
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            fill(*dialog);
            time.start();
            dialog->findChild<QPushButton*>(u"cmdOK"_s)->click();
        });
        press(command);
        watch.forget(); // what the closing dialog had painted
        watch.wait();
        return static_cast<double>(time.nsecsElapsed()) / 1e6;
    }

    client program_;
    frmMain* window_ = nullptr;
};

double median_of(int rounds, const measure& measured) {
    return in_turn(rounds, measured, [] { return 0.0; }).ours;
}

/// The dearest column decides; the rows are left in the order of their numbers.
double sort_cost(list_side& list) {
    double dearest = 0;
    for (int column = 0; column < bare_model::columns; ++column) {
        dearest = std::max(dearest, median_of(5, [&] { return list.sort(column); }));
    }
    list.sort(0);
    return dearest;
}

/// The last row by each of its values, from the first row on; the dearest column decides.
double find_cost(list_side& list, int rows) {
    const QStringList values{QString::number(rows),
                             u"客户99999"_s,
                             u"13900099999"_s,
                             u"不详"_s,
                             u"2020-02-02"_s,
                             u"010-00099999"_s,
                             u"老客户，第99999位，常来"_s};
    double dearest = 0;
    for (int column = 0; column < values.size(); ++column) {
        dearest =
            std::max(dearest, median_of(5, [&] { return list.find(column, values[column]); }));
    }
    return dearest;
}

void print_against_bare(const std::string& operation, int rows, const medians& took) {
    print({.operation = operation,
           .rows = rows,
           .ours = took.ours,
           .twin = took.twin,
           .kind = bound::ratio_at_most,
           .limit = 1.7});
}

void print_against_clock(const std::string& operation, int rows, double took, double limit) {
    print({.operation = operation,
           .rows = rows,
           .ours = took,
           .kind = bound::at_most,
           .limit = limit});
}

} // namespace

void bench_list() {
    std::vector<double> open_costs;
    std::vector<double> sort_costs;
    std::vector<double> find_costs;
    for (const int rows : growth_rows) {
        const bench_store store;
        store.fill_customers(rows);
        list_side ours(store);
        bare_list twin(store.path());
        const medians opened = in_turn(
            11, [&] { return ours.open(); }, [&] { return twin.open(); });
        print_against_bare("list window, command to first paint", rows, opened);
        print_against_bare("list window, refresh", rows,
                           in_turn(
                               11, [&] { return ours.refresh(); }, [&] { return twin.refresh(); }));
        open_costs.push_back(opened.ours);
        sort_costs.push_back(sort_cost(ours));
        print_against_clock("list window, sort by the dearest column", rows, sort_costs.back(),
                            100);
        find_costs.push_back(find_cost(ours, rows));
        print_against_clock("list window, find the last row by the dearest column", rows,
                            find_costs.back(), 30);
    }
    print_growth("list window, first paint", open_costs);
    print_growth("list window, sort", sort_costs);
    print_growth("list window, find", find_costs);
}
