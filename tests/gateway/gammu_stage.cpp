// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/gateway/gammu_stage.h"

#include "platform/database/sqlite_database.h"

#include <QFile>

#include <csignal>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Behind the sample settings: the dummy phone has no radio to be asked about, and is looked at
/// without a pause.
constexpr const char* haste = "loopsleep = 0\nchecksecurity = 0\ncheckbattery = 0\n"
                              "checksignal = 0\nchecknetwork = 0\n";

/// The sample settings with a dummy phone and a database in this folder.
QString daemon_settings(const QString& folder) {
    QFile file(u"" GAMMU_SMSDRC ""_s);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no sample settings: %s", qPrintable(file.fileName()));
    }
    QString text = QString::fromUtf8(file.readAll()) + QString::fromLatin1(haste);
    const QList<std::pair<QString, QString>> changes{
        {u"/dev/ttyUSB0"_s, folder + u"/phone"_s},
        {u"connection = at"_s, u"connection = none\nmodel = dummy"_s},
        {u"logfile = syslog"_s, u"logfile = stderr"_s},
        {u"/var/lib/gammu-smsd"_s, folder},
        {u"receivefrequency = 5"_s, u"receivefrequency = 1"_s},
        {u"commtimeout = 5"_s, u"commtimeout = 1"_s},
    };
    for (const auto& [sample, here] : changes) {
        if (!text.contains(sample)) {
            qFatal("the sample settings lack %s", qPrintable(sample));
        }
        text.replace(sample, here);
    }
    return text;
}

void write(const QString& path, const QString& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content.toUtf8());
}

} // namespace

gammu_stage::gammu_stage() {
    settings.database = path(u"smsd.db"_s);
    settings.poll = 50ms;
    QFile tables(u"/usr/share/doc/gammu-smsd/examples/sqlite.sql"_s);
    if (!tables.open(QIODevice::ReadOnly)) {
        qFatal("gammu-smsd's tables are not installed: %s", qPrintable(tables.fileName()));
    }
    open_database(settings.database, physical_database::open_mode::create)
        ->execute_script(("BEGIN;" + tables.readAll() + "COMMIT").constData());
    QDir().mkpath(path(u"phone/sms/1"_s));
    write(path(u"smsdrc"_s), daemon_settings(folder_.path()));
    daemon_.setStandardErrorFile(path(u"log"_s));
}

void gammu_stage::start_daemon() {
    run(u"DELETE FROM phones"_s);
    daemon_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    daemon_.start(u"gammu-smsd"_s, {u"-c"_s, path(u"smsdrc"_s)});
    QTRY_VERIFY2_WITH_TIMEOUT(!column(u"SELECT IMEI FROM phones"_s).isEmpty(),
                              qPrintable(daemon_.errorString()), 30'000);
}

void gammu_stage::stop_daemon() {
    daemon_.kill();
    daemon_.waitForFinished();
}

void gammu_stage::sign_in(const QString& age) {
    run(u"INSERT OR REPLACE INTO phones (ID, IMEI, IMSI, Client, Signal, InsertIntoDB, TimeOut, "
        "UpdatedInDB) VALUES ('', '1', '1', '', 70, datetime('now', 'localtime', '-1 hour'), "
        "datetime('now', 'localtime', '%1'), datetime('now', '%1'))"_s.arg(age));
}

void gammu_stage::start_engine() {
    engine.emplace(settings);
    engine->start(sink);
}

void gammu_stage::receive(const QString& sender, const QString& text, const QString& header) {
    QString hex;
    for (const QChar c : text) {
        hex += u"%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
    }
    QString content =
        u"[SMSBackup000]\nPDU = Deliver\nDateTime = 20260102T030405\nState = UnRead\nNumber = \"%1\"\nCoding = Unicode_No_Compression\nFolder = 1\nLength = %2\nClass = -1\nUDH = %3\n"_s
            .arg(sender, QString::number(text.size()), header);
    constexpr qsizetype line = 200;
    for (qsizetype i = 0; i * line < hex.size(); ++i) {
        content += u"Text%1 = %2\n"_s.arg(i, 2, 10, QChar(u'0')).arg(hex.mid(i * line, line));
    }
    // The phone shall not see half of it.
    write(path(u"new"_s), content);
    QVERIFY(QFile::rename(path(u"new"_s), path(u"phone/sms/1/%1"_s.arg(++dropped_))));
}

QStringList gammu_stage::column(const QString& sql) const {
    QStringList values;
    for (const QStringList& row : gateway::gammu_database(settings).rows(sql)) {
        values.append(row.first());
    }
    return values;
}
