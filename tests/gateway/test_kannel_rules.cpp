// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_callbacks.h"
#include "gateway/kannel_request.h"
#include "gateway/kannel_status.h"

#include <QTest>

using namespace Qt::StringLiterals;
using gateway::handover_result;

class test_kannel_rules : public QObject {
    Q_OBJECT

private slots:
    void submits() {
        gateway::kannel_settings wanted;
        wanted.sendsms = QUrl(u"http://[::1]:13013/cgi-bin/sendsms"_s);
        wanted.username = u"店"_s;
        wanted.password = u"a  b\r\nX-Kannel-To: 1"_s; // ends no field
        wanted.smsc = u"office"_s;
        const QByteArray bytes = gateway::kannel_submission(
            wanted, {7, u"+8613912345678"_s, u" 您好😀\r\n"_s},
            gateway::kannel_report_url("http://127.0.0.1:9101/kannel/s/", 7));
        QCOMPARE(bytes, "POST /cgi-bin/sendsms HTTP/1.0\r\nHost: [::1]:13013\r\n"
                        "Connection: keep-alive\r\nContent-Type: text/plain; charset=UTF-8\r\n"
                        "X-Kannel-Username: 店\r\nX-Kannel-Password: a  bX-Kannel-To: 1\r\n"
                        "X-Kannel-To: +8613912345678\r\nX-Kannel-Coding: 2\r\n"
                        "X-Kannel-DLR-Mask: 31\r\nX-Kannel-DLR-Url: http://127.0.0.1:9101/kannel/s/"
                        "report?id=7&type=%d&ans=%A&fid=%F\r\nX-Kannel-SMSC: office\r\n"
                        "Content-Length: 13\r\n\r\n 您好😀\r\n");
        for (const QString& gsm : {u"^{}\\[~]|€"_s, u"à@£\n"_s}) {
            QVERIFY(gateway::kannel_submission(wanted, {7, {}, gsm}, {}).contains("Coding: 0"));
        }
        wanted.status_password = u"a&b+%"_s;
        QVERIFY(gateway::kannel_status_request(wanted).startsWith(
            "GET /status.xml?password=a%26b%2B%25 HTTP/1.0\r\n"));
    }

    void understands_answers() {
        using enum handover_result;
        const auto means = [](int status, const QByteArray& body, handover_result result,
                              bool bad_settings = false) {
            const auto verdict = gateway::read_submission_answer(status, body);
            QVERIFY2(verdict.outcome.result == result, body);
            QVERIFY2(verdict.bad_settings == bad_settings, body);
            QCOMPARE(gateway::read_probe_answer(status, body).isEmpty(),
                     body.startsWith("Missing receiver"));
        };
        means(202, "0: Accepted for delivery", accepted);
        means(202, "3: Queued for later delivery", accepted);
        means(202, "<html>", unknown);
        means(200, "0: Accepted for delivery", unknown);
        means(400, "Missing receiver number, rejected", refused);
        means(400, "Number(s) has/have been denied by white- and/or black-lists.", refused);
        means(400, "Sender missing and no global set, rejected", not_now, true);
        means(400, "DLR-URL field misformed, rejected", not_now, true);
        means(403, "Authorization failed for sendsms", not_now, true);
        means(404, "Unknown request.", not_now, true);
        means(301, "", not_now, true);
        means(503, "Temporal failure, try again later.", not_now);
        means(502, "Bad Gateway", unknown);
    }

    void reads_reports() {
        const auto means = [](const QByteArray& query, const QString& meaning) {
            const auto read = gateway::read_kannel_report(*gateway::read_query(query));
            const auto* fault = std::get_if<gateway::callback_fault>(&read);
            const auto told =
                fault == nullptr ? std::get<gateway::report>(read) : gateway::report();
            QCOMPARE(fault != nullptr
                         ? fault->text
                         : u"%1 %2 %3 %4 %5"_s.arg(QString::number(told.id),
                                                   QString::number(int(told.what)), told.ref,
                                                   told.reason, QString::number(int(told.cause))),
                     meaning);
        };
        means("id=7&type=8&ans=ACK%2F&fid=ab-1", u"7 0 ab-1  0"_s);
        means("id=7&type=1&ans=&fid=x", u"7 2 x  0"_s);
        means("id=7&type=4", u"7 1   0"_s);
        means("id=7&type=16&ans=NACK%2F1+bad+number&fid=", u"7 4  NACK/1 bad number 1"_s);
        means("id=7&type=16&ans=NACK%2FRetries%20Exceeded", u"7 4  NACK/Retries Exceeded 6"_s);
        means("id=7&type=16&ans=NACK/0x0000000b/Invalid+Destination+Address",
              u"7 4  NACK/0x0000000b/Invalid Destination Address 1"_s);
        means("id=7&type=2&fid=06&ans=id:06+sub:001+dlvrd:001+submit+date:2601010000+stat:UNDELIV"
              "+err:001+text:your+number",
              u"7 3 06 UNDELIV 001 5"_s);
        means("id=7&type=2&ans=stat:UNDELIV%0Aerr:%00%ff", u"7 3  stat:UNDELIV err:\uFFFD 5"_s);
        means("type=8", u"id is missing or stands there twice"_s);
        means("id=7&id=8&type=8", u"id is missing or stands there twice"_s);
        means("id=-7&type=8", u"id is no positive number"_s);
        means("id=99999999999999999999&type=8", u"id is no positive number"_s);
        means("id=7&type=3", u"type is none of 1, 2, 4, 8, 16"_s);
    }

    void reads_messages() {
        // The text, or the fault.
        const auto means = [](const QByteArray& query, const QString& meaning) {
            const auto read = gateway::read_kannel_message(*gateway::read_query(query));
            if (const auto* fault = std::get_if<gateway::callback_fault>(&read)) {
                QCOMPARE(fault->text, meaning);
                return;
            }
            const auto& message = std::get<gateway::incoming_message>(read);
            QCOMPARE(message.key + message.sender, u"u-1+8613912345678"_s);
            QCOMPARE(message.time.toSecsSinceEpoch(), 1'795'299'861);
            QCOMPARE(message.text, meaning);
        };
        const QByteArray who = "id=u-1&from=%2B8613912345678&time=1795299861";
        means(who + "&text=it's++two%0A&coding=0&charset=UTF-8", u"it's  two\n"_s);
        means(who + "&text=%00'%60%A8%D8%3D%DE%00&coding=2&charset=utf-16be", u"'您😀"_s);
        means(who + "&text=%00%ff&coding=1&charset=", u"(a message that is no text: 00ff)"_s);
        means(who + "&text=&coding=0&charset=UTF-8", QString());
        means(who + "&text=%ff&coding=0&charset=UTF-8", u"the text is not in its character set"_s);
        means(who + "&text=abc&coding=2&charset=UTF-16BE",
              u"the text is not in its character set"_s);
        means(who + "&text=a&coding=0&charset=KOI8-R",
              u"the character set is neither UTF-8 nor UTF-16BE"_s);
        means(who + "&text=a&text=b&coding=0&charset=UTF-8",
              u"text is missing or stands there twice"_s);
        means(who + "&from=1&text=b&coding=0&charset=UTF-8",
              u"from is missing or stands there twice"_s);
        means("id=1&from=" + QByteArray(65, '1') + "&time=1&text=b&coding=0&charset=UTF-8",
              u"from is no text of up to 64 characters"_s);
        means("id=&from=1&time=1&text=b&coding=0&charset=UTF-8", u"id or from is empty"_s);
        means("id=1&from=1&time=x&text=b&coding=0&charset=UTF-8", u"time is no positive number"_s);
        means("id=1&from=1&time=999999999999999&text=b&coding=0&charset=UTF-8",
              u"time is no moment"_s);
    }

    void knows_its_callers() {
        using enum gateway::kannel_call;
        QVERIFY(gateway::which_call("secret/report", "secret") == report);
        QVERIFY(gateway::which_call("secret/received", "secret") == message);
        for (const char* other : {"secret", "secre/report", "secret2/report", "Secret/report",
                                  "/report", "secret/other", "secret/report/"}) {
            QVERIFY2(gateway::which_call(other, "secret") == none, other);
        }
        QVERIFY(gateway::which_call("/report", "") == none);
    }

    void reads_the_status() {
        const auto tell = [](const QByteArray& xml) {
            return gateway::tell(gateway::read_kannel_status(200, xml));
        };
        QCOMPARE(tell("<gateway><sms><storesize>12</storesize></sms><smscs><count>2</count>"
                      "<smsc><status>online 3s</status></smsc>"
                      "<smsc><status>re-connecting</status></smsc></smscs></gateway>\n"),
                 u"1 of 2 links online, 12 messages stored"_s);
        QCOMPARE(tell("<?xml version=\"1.0\"?>\n<gateway>\nDenied</gateway>\n"),
                 u"Kannel does not know this status password"_s);
        QCOMPARE(tell("<gateway><smscs>"), u"this is no status.xml of Kannel (HTTP 200)"_s);
        QCOMPARE(tell("<html></html>"), u"this is no status.xml of Kannel (HTTP 200)"_s);
    }
};

QTEST_GUILESS_MAIN(test_kannel_rules)
#include "test_kannel_rules.moc"
