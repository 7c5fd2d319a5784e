// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// Turns the system's wish that the program end (SIGTERM, SIGINT, SIGHUP) into an ordinary event.
/// Where the system has no such signals nothing happens. There is one at a time.
class termination_watch : public QObject {
    Q_OBJECT

public:
    /// Takes the signals over from now on; one that comes early is kept for the event loop.
    explicit termination_watch(QObject* parent = nullptr);
    ~termination_watch() override;
    Q_DISABLE_COPY_MOVE(termination_watch)

signals:
    /// The program was asked to end; told again several times a second until it has, for what
    /// opens meanwhile must end too.
    void requested();

private:
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
    QTimer again_;
};
