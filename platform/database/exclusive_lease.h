// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

class physical_database;

/// The right to be the only one, of all programs that use the same file, to do some work on it. The
/// holder locks an empty file of its own beside the guarded one ("-lease" behind its name), never
/// the guarded file itself. The operating system takes the lock back when the process ends, however
/// it ends. The empty file stays: two programs that remove and make it could each lock their own.
class exclusive_lease {
public:
    /// Links to one file share its lease. The file need not exist yet.
    explicit exclusive_lease(QString guarded_file);
    ~exclusive_lease();
    Q_DISABLE_COPY_MOVE(exclusive_lease)

    /// Takes the lease unless another has it, and never waits; true when it is held now. False too
    /// while the guarded file is away or read-only, and where the empty one cannot be made or
    /// written; that is said on standard error, once until the lease is had.
    [[nodiscard]] bool try_take();
    void release();

    /// The empty file beside `guarded_file`, when it is there but somebody who may write the
    /// guarded one cannot write it: its path. Else nothing.
    [[nodiscard]] static QString unwritable_file(const QString& guarded_file);

private:
    void take();

    QString guarded_file_;
    std::unique_ptr<physical_database> lock_; ///< has its write lock while the lease is held
    bool has_complained_ = false;
};
