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
        client.write("#!/bin/sh\necho " + version + " \"$0\" \"$@\"\n");
        client.setPermissions(for_all);
    }

    /// What a line of a shell writes that finds the launcher.
    QByteArray start(const QString& line = u"smscrm 'an argument'"_s) {
        QProcess shell;
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(u"XDG_DATA_HOME"_s, home_.filePath(u"data of mine"_s));
        surroundings.insert(u"DISPLAY"_s, u":none"_s);
        surroundings.insert(u"PATH"_s, system_.filePath(u"bin:"_s) + qEnvironmentVariable("PATH"));
        shell.setProcessEnvironment(surroundings);
        shell.start(u"sh"_s, {u"-c"_s, line});
        return shell.waitForFinished() ? shell.readAllStandardOutput().trimmed() : QByteArray();
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

    void a_box_tells_why_there_is_no_start() {
        install("here");
        const QString client = system_.filePath(u"lib/smscrm/smscrm"_s);
        const QByteArray box = "here " + QFile::encodeName(client) + " --cannot-start ";
        QVERIFY(start(u"XDG_DATA_HOME=/dev/null smscrm"_s).startsWith(box + "不能建立工作文件夹"));
        const QString elsewhere = u"XDG_DATA_HOME=$XDG_DATA_HOME/new smscrm"_s;
        QVERIFY(start(u"ulimit -f 0; "_s + elsewhere).startsWith(box + "不能把程序复制到"));
        QVERIFY(QFile::link(u"/bin/false"_s, system_.filePath(u"bin/xdg-open"_s)));
        QVERIFY(start(u"smscrm --manual"_s).startsWith(box + "打不开操作手册"));
        QVERIFY(QFile::setPermissions(client, QFile::ReadOwner | QFile::ReadOther));
        QCOMPARE(start(elsewhere), QByteArray()); // what may not run can show no box either
    }
};

QTEST_APPLESS_MAIN(test_launcher)
#include "test_launcher.moc"
