// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/bench_screen.h"

#include "app/client.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstring>

int main(int argc, char* argv[]) {
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    if (argc > 2 && std::strcmp(argv[1], "--probe") == 0) {
        return run_probe(argc, argv);
    }
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    set_up_toolkit();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
