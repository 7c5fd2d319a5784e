// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace gateway {

/// Turns SIGTERM and SIGINT into an ordinary event, so that the program ends in good order.
class termination_watch : public QObject {
    Q_OBJECT

public:
    /// Takes the signals over from now on; one that comes early is kept for the event loop.
    termination_watch();
    ~termination_watch() override;
    Q_DISABLE_COPY_MOVE(termination_watch)

signals:
    /// The program was asked to end.
    void requested();

private:
    int descriptor_;
    QSocketNotifier notifier_;
};

} // namespace gateway
