// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/new_file.h"

#include "tools/command.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw failure(u"%1: cannot be written: %2"_s.arg(path, reason));
}

/// Makes a file's content, or a folder's entries, durable.
void sync(const QString& path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool synced = descriptor >= 0 && ::fsync(descriptor) == 0;
    const int reason = errno;
    ::close(descriptor);
    if (!synced) {
        fail(path, qt_error_string(reason));
    }
}

bool rename(const QByteArray& from, const QByteArray& to, new_file::Existing existing) {
    if (existing == new_file::Existing::replace) {
        return std::rename(from.constData(), to.constData()) == 0;
    }
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    // Some network file systems have only this way of not replacing.
    return errno == EINVAL && ::link(from.constData(), to.constData()) == 0 &&
           ::unlink(from.constData()) == 0;
}

} // namespace

new_file::new_file(const QString& place, Existing existing)
    : place_(place), part_(place + u".part"_s), existing_(existing), lock_(place + u".lock"_s) {
    const QFileInfo there(place);
    if (existing == Existing::keep && (there.exists() || there.isSymLink())) {
        throw failure(u"%1: exists already"_s.arg(place));
    }
    // A run killed while it made its lock leaves one that names nobody; a live one's is kept
    // anyhow.
    lock_.setStaleLockTime(1000);
    if (!lock_.tryLock(0)) {
        fail(place, lock_.error() == QLockFile::LockFailedError
                        ? u"another run is writing it"_s
                        : u"no file can be made in its folder"_s);
    }
    remove_parts();
}

new_file::~new_file() {
    remove_parts();
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
    sync(part_);
    if (!rename(QFile::encodeName(part_), QFile::encodeName(place_), existing_)) {
        fail(place_, qt_error_string(errno));
    }
    sync(QFileInfo(place_).absolutePath());
}

void new_file::remove_parts() const {
    for (const QString& suffix : {u""_s, u"-journal"_s, u"-wal"_s, u"-shm"_s}) {
        QFile::remove(part_ + suffix);
    }
}
