// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tests/tools/smsdb_shell.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// In which language a program without windows speaks, and in which encoding.
class test_language : public QObject, private smsdb_shell {
    Q_OBJECT

private slots:
    void speaks_the_users_language_data() {
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QByteArray>("answer");
        const QByteArray english = "no command";
        const QByteArray chinese = "没有命令";
        QTest::newRow("none") << u"LC_ALL="_s << english;
        QTest::newRow("Chinese") << u"LC_ALL=zh_CN.UTF-8"_s << chinese;
        QTest::newRow("of Taiwan") << u"LANG=zh_TW"_s << chinese;
        QTest::newRow("for messages") << u"LANG=en_US LC_MESSAGES=zh_CN"_s << chinese;
        QTest::newRow("not for messages") << u"LANG=zh_CN LC_MESSAGES=en_US"_s << english;
        QTest::newRow("second choice") << u"LANG=de_DE LANGUAGE=de:zh_CN:en"_s << chinese;
        QTest::newRow("after English") << u"LANG=en_GB LANGUAGE=en_GB:zh_CN"_s << english;
        QTest::newRow("no locale") << u"LC_ALL=C LANGUAGE=zh_CN"_s << english;
        QTest::newRow("GBK") << u"LOCPATH=DIR LC_ALL=zh_CN.GBK"_s << "\xC3\xBB\xD3\xD0\xC3\xFC"_qba;
    }

    void speaks_the_users_language() {
        QFETCH(QString, settings);
        QFETCH(QByteArray, answer);
        database_.emplace();
        run(u"localedef --quiet -c -i POSIX -f GBK DIR/zh_CN.GBK"_s);
        QCOMPARE(run(u"unset LC_ALL LANGUAGE; %1 smsdb"_s.arg(settings)), 2);
        QVERIFY2(told_.startsWith("smsdb: " + answer), told_);
    }
};

QTEST_GUILESS_MAIN(test_language)
#include "test_language.moc"
