// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>

/// A timer with an interval and a switch apart. It ticks while it is enabled and its interval is
/// above 0; setting either starts the count anew.
class IntervalTimer : public QObject {
    Q_OBJECT

public:
    explicit IntervalTimer(QObject* parent = nullptr);

    [[nodiscard]] int Interval() const noexcept { return interval_; }
    [[nodiscard]] bool Enabled() const noexcept { return enabled_; }
    /// In milliseconds; 0 or less never fires.
    void set_Interval(int milliseconds);
    void set_Enabled(bool enabled);

signals:
    void Timer();

private:
    void restart();

    int interval_ = 0;
    bool enabled_ = true;
    QTimer timer_;
};
