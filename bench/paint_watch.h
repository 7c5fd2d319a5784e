// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

/// Notices when a widget of a class, or its viewport, has been painted.
class paint_watch : public QObject {
    Q_OBJECT

public:
    /// Names the class as its meta-object does.
    explicit paint_watch(const char* class_name);

    /// Runs the event loop until the next paint. Throws std::runtime_error when there is none
    /// within ten seconds.
    void wait();
    /// What is seen from now on counts for `wait`, not what was before.
    void forget() { painted_ = false; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Once the paint is done.
    void painted();

private:
    const char* class_name_;
    bool painted_ = false;
};
