// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProgressDialog>

/// Shows how far a long run of its caller has come. It comes up as it is made, and events but the
/// operator's are handled meanwhile; make it before a transaction begins. From then on it is only
/// painted: no key, click, data or timer is handled before the caller returns.
class progress_box {
public:
    /// `total` is what `report` counts up to.
    progress_box(const QString& text, qsizetype total);

    void report(qsizetype done);

private:
    QProgressDialog box_;
};
