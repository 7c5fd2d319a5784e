// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/terminal_application.h"

std::unique_ptr<QCoreApplication> terminal_application(int& argc, char** argv) {
    const auto silent = [](QtMsgType, const QMessageLogContext&, const QString&) {};
    const QtMessageHandler handler = qInstallMessageHandler(silent);
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    qInstallMessageHandler(handler);
    return application;
}
