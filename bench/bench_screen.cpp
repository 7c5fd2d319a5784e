// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_screen.h"

#include "bench/bench_store.h"

#include "app/client.h"
#include "app/frmMain.h"
#include "data/strconn.h"
#include "operators/rsclsuser.h"
#include "platform/widgets/data_grid.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QMdiSubWindow>
#include <QProcess>
#include <QScrollBar>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Notices the first paint of a widget of a class, or of its viewport.
class paint_watch : public QObject {
public:
    bool painted = false;
    std::function<void()> then;

    explicit paint_watch(const char* class_name) : class_name_(class_name) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !painted &&
            (watched->inherits(class_name_) ||
             (watched->parent() != nullptr && watched->parent()->inherits(class_name_)))) {
            painted = true;
            QTimer::singleShot(0, this, [this] {
                if (then) {
                    then();
                }
            });
        }
        return false;
    }

private:
    const char* class_name_;
};

void list_window(benchmark::State& state) {
    const bench_store store;
    bench_store::fill_customers(static_cast<int>(state.range(0)));
    curuser = std::make_unique<rsclsuser>();
    curuser->set_userid(1);
    client program;
    frmMain& window = program.open_main_window();
    window.resize(1000, 700);
    QAction* command = window.findChild<QAction*>(u"mnuProject"_s);
    for (const auto step : state) {
        paint_watch watch("DataGrid");
        command->trigger();
        while (!watch.painted) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        state.PauseTiming();
        for (QMdiSubWindow* list : window.findChildren<QMdiSubWindow*>()) {
            delete list;
        }
        state.ResumeTiming();
    }
}
BENCHMARK(list_window)->Arg(1000)->Arg(10000)->Arg(most_rows)->Unit(benchmark::kMillisecond);

void scroll_to_end(benchmark::State& state) {
    const bench_store store;
    bench_store::fill_customers(most_rows);
    curuser = std::make_unique<rsclsuser>();
    curuser->set_userid(1);
    client program;
    frmMain& window = program.open_main_window();
    window.resize(1000, 700);
    window.findChild<QAction*>(u"mnuProject"_s)->trigger();
    QApplication::processEvents();
    QScrollBar* bar = window.findChild<DataGrid*>()->verticalScrollBar();
    for (const auto step : state) {
        bar->setValue(bar->value() == bar->maximum() ? 0 : bar->maximum());
        QApplication::processEvents();
    }
}
BENCHMARK(scroll_to_end)->Unit(benchmark::kMillisecond);

/// A process of this program from its start to the first paint of its dialog.
void first_paint(benchmark::State& state, const QString& probe) {
    const bench_store store;
    for (const auto step : state) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {u"--probe"_s, probe, store.folder()});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            state.SkipWithError("the probe failed");
        }
    }
}
BENCHMARK_CAPTURE(first_paint, bare_dialog, u"bare"_s)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(first_paint, login_dialog, u"login"_s)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

int probe_login(const QString& folder) {
    set_up_toolkit();
    paint_watch watch("frmLogin");
    watch.then = [] { _exit(0); };
    return start_session(folder).value_or(1);
}

int probe_bare() {
    QDialog dialog;
    dialog.resize(270, 130);
    paint_watch watch("QDialog");
    watch.then = [] { _exit(0); };
    return dialog.exec();
}

/// What a client costs that stands idle for ten seconds behind its main window.
int probe_idle(const QString& folder) {
    set_up_toolkit();
    strconn = make_strconn(folder);
    curuser = std::make_unique<rsclsuser>();
    curuser->set_userid(1);
    client program;
    program.open_main_window();
    std::clock_t start = 0;
    QTimer::singleShot(1000, [&start] { start = std::clock(); });
    QTimer::singleShot(11000, &QApplication::quit);
    QApplication::exec();
    QFile status(u"/proc/self/status"_s);
    static_cast<void>(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS") || line.startsWith("RssAnon")) {
            std::puts(line.constData());
        }
    }
    std::printf("processor time in 10 s: %.1f ms\n",
                1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    return 0;
}

} // namespace

int run_probe(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const QString probe = QString::fromLocal8Bit(argv[2]);
    const QString folder = QString::fromLocal8Bit(argc > 3 ? argv[3] : ".");
    if (probe == u"login") {
        return probe_login(folder);
    }
    return probe == u"bare" ? probe_bare() : probe_idle(folder);
}
