// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/benches.h"
#include "bench/measure.h"
#include "bench/responder.h"

#include "app/client.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

/// Without arguments the whole table, else the parts that are named.
int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // the offscreen platform's remarks
    if (argc > 3 && std::strcmp(argv[1], "--probe") == 0) {
        return run_probe(argc, argv);
    }
    const QTemporaryDir settings; // the operator's own stay untouched
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    const responder gateway;
    QApplication application(argc, argv);
    set_up_toolkit();
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList parts = QApplication::arguments().sliced(1);
    const auto wanted = [&parts](const char* part) {
        return parts.isEmpty() || parts.contains(QLatin1String(part));
    };
    try {
        print_head();
        if (wanted("dispatch")) {
            bench_dispatch(gateway.port());
        }
        if (wanted("search")) {
            bench_search();
        }
        if (wanted("group")) {
            bench_group_send();
        }
        if (wanted("gateway")) {
            bench_gateway();
        }
        if (wanted("kannel")) {
            bench_kannel();
        }
        if (wanted("list")) {
            bench_list();
        }
        if (wanted("process")) {
            bench_process();
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    return all_kept() ? 0 : 1;
}
