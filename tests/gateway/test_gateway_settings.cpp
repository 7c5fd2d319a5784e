// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/setting_values.h"

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;

class test_gateway_settings : public QObject {
    Q_OBJECT

    // The faults of a file, less its name.
    static QString faults(const QByteArray& content, gateway::settings* values = nullptr) {
        QTemporaryFile file;
        [&] { QVERIFY(file.open()); }();
        file.write(content);
        file.close();
        const auto read = gateway::read_settings(file.fileName());
        if (values != nullptr) {
            *values = read.values;
        }
        return read.faults.join(u'\n').remove(file.fileName());
    }

private slots:
    void reads() {
        gateway::settings all;
        QCOMPARE(faults("; a comment\n[gateway]\nengine = kannel\nlisten = [::1]:9200\n"
                        "tell_failures=refused\n[numbers]\nshort_codes = 106*, xxx\n"
                        "[kannel]\nusername=店\npassword = \"a,;\\\\ b\"\ntimeout_s=5\n"
                        "[http]\nsecret=0123456789abcdef\n[simulator]\necho = yes\nfail_rate=0.5\n",
                        &all),
                 QString());
        QVERIFY(all.gateway.engine == gateway::engine_name::kannel);
        QCOMPARE(gateway::endpoint_text(all.gateway.listen), u"[::1]:9200"_s);
        QVERIFY(all.gateway.tell_failures == gateway::told_failures::refused);
        QCOMPARE(all.numbers.short_codes, (QStringList{u"106*"_s, u"xxx"_s}));
        QCOMPARE(all.kannel.username, u"店"_s);
        QCOMPARE(all.kannel.password, u"a,;\\ b"_s);
        QCOMPARE(all.kannel.timeout.count(), 5);
        QVERIFY(all.simulator.echo && all.simulator.fail_rate == 0.5);
    }

    // The delivered sample names every setting and says what holds without it.
    void reads_the_sample() {
        QFile file(QStringLiteral(SAMPLE_PATH));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString content = QString::fromUtf8(file.readAll());
        QCOMPARE(faults(content.toUtf8()), QString());
        QString section;
        QStringList names = gateway::setting_names();
        gateway::settings given;
        for (const QString& line : content.split(u'\n', Qt::SkipEmptyParts)) {
            if (line.startsWith(u'[')) {
                section = line.mid(1).chopped(1);
            } else if (!line.startsWith(u';')) {
                names.removeOne(section + u'/' + line.section(u' ', 0, 0));
            }
        }
        QCOMPARE(names.join(u' '), QString());
        static_cast<void>(faults(content.toUtf8(), &given));
        const gateway::settings usual;
        QCOMPARE(given.numbers.short_codes, usual.numbers.short_codes);
        QCOMPARE(given.kannel.status, usual.kannel.status);
        QVERIFY(given.http.on == usual.http.on && given.gammu.poll == usual.gammu.poll &&
                given.gateway.keep_days == usual.gateway.keep_days);
    }

    void tells_faults() {
        // A part of the only line that a file gives.
        const auto tells = [](const char* content, const QString& told) {
            const QString all = faults(content);
            QVERIFY2(all.contains(told) && !all.contains(u'\n'), qPrintable(all));
            QVERIFY(!all.contains(u"a;b"));
        };
        tells("[gateway]\n\nlisn = 1", u":3: there is no setting gateway/lisn"_s);
        tells("[gateway]\nlisten = 300.0.0.1:1",
              u":2: gateway/listen = 300.0.0.1:1: expected an IP"_s);
        tells("[gateway]\nengine = carrier", u"expected one of: simulator, kannel, gammu"_s);
        tells("[gateway]\nkeep_days = 1", u"a whole number from 2"_s);
        tells("[simulator]\nfail_rate = nan", u"a probability"_s);
        tells("[simulator]\necho = perhaps", u"yes or no"_s);
        tells("[numbers]\nshort_codes = 1y", u":2: numbers/short_codes = 1y: expected numbers"_s);
        tells("[numbers]\ncountry = 8６", u"up to 3 digits"_s);
        tells("[kannel]\nsendsms = ftp://x/", u"http://"_s);
        tells("[http]\non = yes\non = no", u":3: http/on stands already in line 2"_s);
        tells("[http]\nlisten", u":2: expected \"[section]\""_s);
        tells("[gammu]\npassword = a;b", u":2: gammu/password: a value with"_s);
        tells("[http]\nsecret = a%b/c-of-sixteen",
              u":2: http/secret: expected 16 to 200 letters"_s);
        tells("[gateway]\nengine = gammu", u": gammu/database is missing"_s);
    }
};

QTEST_GUILESS_MAIN(test_gateway_settings)
#include "test_gateway_settings.moc"
