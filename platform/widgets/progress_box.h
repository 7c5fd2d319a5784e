// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProgressDialog>

/// Shows how far a long run of its caller has come, and lets nothing else in: no key, click, data
/// or timer is handled before the caller returns. Unseen until the first step is told.
class progress_box {
public:
    explicit progress_box(const QString& text);

    void show(qsizetype done, qsizetype total);

private:
    QProgressDialog box_;
};
