// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/new_file.h"

#include "platform/file_owner.h"
#include "platform/termination.h"
#include "tools/command.h"
#include "tools/texts.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw failure(texts::tr("%1: cannot be written: %2").arg(path, reason));
}

/// A log beside another database than its own would be taken for the other's.
void refuse_logs(const QString& place) {
    for (const QString& log : {place + u"-wal"_s, place + u"-journal"_s}) {
        if (QFileInfo::exists(log)) {
            throw failure(
                texts::tr("%1: is in the way; it belongs to a database that is gone").arg(log));
        }
    }
}

} // namespace

new_file::new_file(const QString& place, existing there)
    : place_(place),
      part_(place + u".smsdb-part"_s),
      there_(there),
      lock_(place + u".smsdb-lock"_s) {
    const QFileInfo old(place);
    if (there == existing::keep && (old.exists() || old.isSymLink())) {
        throw failure(texts::tr("%1: exists already").arg(place));
    }
    if (there == existing::keep) {
        refuse_logs(place);
    }
    // A run killed while it made its lock leaves one that names nobody; a live one's is kept
    // anyhow.
    lock_.setStaleLockTime(1000);
    if (!lock_.tryLock(0)) {
        fail(place, lock_.error() == QLockFile::LockFailedError
                        ? texts::tr("another run is writing it")
                        : texts::tr("no file can be made in its folder"));
    }
    remove_on_termination(parts() + QStringList(place + u".smsdb-lock"_s));
    remove_parts();
}

new_file::~new_file() {
    remove_parts();
    remove_on_termination({});
}

void new_file::write(const QByteArray& content) {
    QFile file(part_);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                             QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // What fills the disk is written in part, and the reason comes with the rest.
    for (qsizetype at = 0; written && at < content.size();) {
        const qint64 length = file.write(content.constData() + at, content.size() - at);
        written = length > 0;
        at += length;
    }
    if (!written || !file.flush()) {
        fail(place_, file.errorString());
    }
}

void new_file::put_in_place() {
    const std::error_code error = move_durably(QFileInfo(part_).filesystemFilePath(),
                                               QFileInfo(place_).filesystemFilePath(), there_);
    if (error) {
        fail(place_, qt_error_string(error.value()));
    }
}

void new_file::take_ownership_of_replaced() {
    give_owner_of(place_, part_);
    const QFileInfo wanted(place_);
    const QFileInfo made(part_);
    if (made.ownerId() != wanted.ownerId() || made.groupId() != wanted.groupId() ||
        !QFile::setPermissions(part_, QFile::permissions(place_))) {
        fail(place_, texts::tr("only its owner can replace it"));
    }
}

QStringList new_file::parts() const {
    return {part_, part_ + u"-journal"_s, part_ + u"-wal"_s, part_ + u"-shm"_s};
}

void new_file::remove_parts() const {
    for (const QString& part : parts()) {
        QFile::remove(part);
    }
}
