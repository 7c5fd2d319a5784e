// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/durable_move.h"

#include <QLockFile>
#include <QString>
#include <QStringList>

/// A file in the making. It grows beside its place under another name and appears there whole, on
/// disk and readable by its owner alone, or not at all. What a killed run left is made anew; one
/// that is asked to end leaves nothing.
class new_file {
public:
    /// Throws failure when there is something at `place` that is to be kept, or a log of a database
    /// that is gone beside it, its folder cannot be written, or another run is making the same
    /// file.
    explicit new_file(const QString& place, existing there = existing::keep);
    /// Takes away what was not put in place.
    ~new_file();
    Q_DISABLE_COPY_MOVE(new_file)

    /// Where to write the content meanwhile.
    [[nodiscard]] const QString& path() const { return part_; }

    /// Writes all of the content. Throws failure.
    void write(const QByteArray& content);

    /// Gives it the owner, group and permissions of what it is to replace. Throws failure.
    void take_ownership_of_replaced();

    /// Makes the content durable and moves it to its place, and that too is on disk on return.
    /// Throws failure, also when something has appeared there that is to be kept.
    void put_in_place();

private:
    /// The file itself and what the database engine keeps beside it.
    [[nodiscard]] QStringList parts() const;
    void remove_parts() const;

    QString place_;
    QString part_;
    existing there_;
    QLockFile lock_;
};
