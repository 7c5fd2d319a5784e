// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/durable_move.h"

#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

QStringList flushed;

} // namespace

/// Takes the place of the system's: notes what is flushed, then has it done.
extern "C" int fsync(int descriptor) {
    flushed.append(QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(descriptor)));
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

class test_durable_move : public QObject {
    Q_OBJECT

private slots:
    void is_on_disk_before_and_after() {
        const QTemporaryDir folder;
        const auto path = [&](const char* name) {
            return std::filesystem::path(folder.filePath(QLatin1String(name)).toStdString());
        };
        for (const char* name : {"a", "b"}) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(name) == 1);
        }
        QVERIFY(move_durably(path("a"), path("b"), existing::keep));
        QVERIFY(std::filesystem::exists(path("a")));
        flushed.clear();
        QVERIFY(!move_durably(path("a"), path("b"), existing::replace));
        QCOMPARE(flushed, QStringList({folder.filePath(QStringLiteral("a")), folder.path()}));
        QFile moved(path("b"));
        QVERIFY(moved.open(QIODevice::ReadOnly));
        QCOMPARE(moved.readAll(), "a");
    }
};

QTEST_GUILESS_MAIN(test_durable_move)
#include "test_durable_move.moc"
