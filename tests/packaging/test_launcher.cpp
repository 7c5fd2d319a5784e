// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto for_all =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;

} // namespace

/// The launcher of the system package, with a script in the client's place that tells whence it
/// runs.
class test_launcher : public QObject {
    Q_OBJECT

private:
    /// What runs is known by `version`.
    void install(const QByteArray& version) {
        QFile client(system_.filePath(u"lib/smscrm/smscrm"_s));
        QVERIFY(client.open(QIODevice::WriteOnly));
        client.write("#!/bin/sh\necho " + version + " \"$0\" \"$1\"\n");
        client.setPermissions(for_all);
    }

    QByteArray start() {
        QProcess launcher;
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(u"XDG_DATA_HOME"_s, home_.filePath(u"data of mine"_s));
        launcher.setProcessEnvironment(surroundings);
        launcher.start(system_.filePath(u"bin/smscrm"_s), {u"an argument"_s});
        return launcher.waitForFinished() ? launcher.readAllStandardOutput().trimmed()
                                          : QByteArray();
    }

    QTemporaryDir system_;
    QTemporaryDir home_;

private slots:
    void initTestCase() {
        QVERIFY(QDir(system_.path()).mkpath(u"bin"_s) &&
                QDir(system_.path()).mkpath(u"lib/smscrm"_s));
        QVERIFY(QFile::copy(QStringLiteral(SMSCRM_LAUNCHER), system_.filePath(u"bin/smscrm"_s)));
    }

    void each_user_runs_the_newest_client_in_a_folder_of_their_own() {
        const QString folder = home_.filePath(u"data of mine/smscrm"_s);
        const QByteArray place = QFile::encodeName(folder + u"/smscrm an argument"_s);
        install("first");
        QCOMPARE(start(), "first " + place);
        QCOMPARE(QFileInfo(folder).permissions() &
                     (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther),
                 QFile::Permissions());
        install("second");
        QCOMPARE(start(), "second " + place);
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{u"smscrm"_s});
    }

    void a_client_that_cannot_be_copied_leaves_the_old_one_to_run() {
        install("old");
        const QByteArray old = start();
        QVERIFY(QFile::remove(system_.filePath(u"lib/smscrm/smscrm"_s)));
        QVERIFY(old.startsWith("old "));
        QCOMPARE(start(), old);
    }
};

QTEST_APPLESS_MAIN(test_launcher)
#include "test_launcher.moc"
