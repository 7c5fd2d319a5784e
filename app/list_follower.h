// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

class QMdiArea;
class vc_in;

/// Lets open lists follow what changes in their rows without the operator, at most once a second,
/// and never under a dialog, a menu or a pressed mouse button.
class list_follower : public QObject {
    Q_OBJECT

public:
    explicit list_follower(const QMdiArea& windows, QObject* parent = nullptr);

    /// The rows that this controller lists have changed.
    void note(const vc_in& controller);

private:
    void follow();

    const QMdiArea& windows_;
    QSet<const vc_in*> changed_;
    QTimer pause_;
};
