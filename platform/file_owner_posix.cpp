// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/file_owner.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

void give_owner_of(const QString& model, const QString& file) {
    constexpr auto as_it_is = static_cast<uid_t>(-1);
    const QByteArray path = QFile::encodeName(file);
    struct stat wanted {};
    struct stat present {};
    if (::stat(QFile::encodeName(model).constData(), &wanted) != 0 ||
        ::lstat(path.constData(), &present) != 0) {
        return;
    }
    const bool is_same = wanted.st_uid == present.st_uid && wanted.st_gid == present.st_gid;
    if (!is_same && ::lchown(path.constData(), wanted.st_uid, wanted.st_gid) != 0) {
        [[maybe_unused]] const int given = ::lchown(path.constData(), as_it_is, wanted.st_gid);
    }
}
