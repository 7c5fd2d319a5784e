// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_request.h"

#include "gateway/text_parts.h"
#include "gateway/texts.h"
#include "platform/gsm_alphabet.h"

#include <QUrlQuery>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// All reports that a centre can give of a message: 1 delivered, 2 not, 4 buffered, 8 accepted, 16
/// refused.
constexpr const char* all_reports = "31";

QByteArray address_of(const QUrl& url) {
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray query = url.query(QUrl::FullyEncoded).toLatin1();
    return (path.isEmpty() ? QByteArray("/") : path) +
           (query.isEmpty() ? QByteArray() : '?' + query);
}

QByteArray host_of(const QUrl& url) {
    return url.authority(QUrl::FullyEncoded).section(u'@', -1).toLatin1();
}

/// A field of the head; nothing in it can end the field.
QByteArray field(const QByteArray& name, QString value) {
    value.removeIf([](QChar c) { return c < u' '; });
    return name + ": " + value.toUtf8() + "\r\n";
}

QByteArray request(const QByteArray& method, const QUrl& url, const QByteArray& fields,
                   const QByteArray& body = {}) {
    return method + ' ' + address_of(url) + " HTTP/1.0\r\nHost: " + host_of(url) +
           "\r\nConnection: keep-alive\r\n" + fields +
           (body.isNull() ? QByteArray()
                          : "Content-Length: " + QByteArray::number(body.size()) + "\r\n") +
           "\r\n" + body;
}

QByteArray submission(const kannel_settings& wanted, const QByteArray& fields,
                      const QByteArray& text) {
    return request("POST", wanted.sendsms,
                   "Content-Type: text/plain; charset=UTF-8\r\n" +
                       field("X-Kannel-Username", wanted.username) +
                       field("X-Kannel-Password", wanted.password) + fields,
                   text);
}

/// A body in one line, for logs and pages.
QString words_of(const QByteArray& body) {
    return QString::fromUtf8(body.left(200)).simplified();
}

} // namespace

QByteArray kannel_submission(const kannel_settings& wanted, const outgoing_message& message,
                             const QByteArray& report_url) {
    QByteArray fields = field("X-Kannel-To", message.number) +
                        field("X-Kannel-Coding", is_gsm_text(message.text) ? u"0"_s : u"2"_s) +
                        "X-Kannel-DLR-Mask: " + all_reports +
                        "\r\nX-Kannel-DLR-Url: " + report_url + "\r\n";
    if (!wanted.from.isEmpty()) {
        fields += field("X-Kannel-From", wanted.from);
    }
    if (!wanted.smsc.isEmpty()) {
        fields += field("X-Kannel-SMSC", wanted.smsc);
    }
    return submission(wanted, fields, with_whole_characters(message.text).toUtf8());
}

QByteArray kannel_probe(const kannel_settings& wanted) {
    return submission(wanted, {}, "x");
}

QByteArray kannel_status_request(const kannel_settings& wanted) {
    QUrl url = wanted.status;
    QUrlQuery query(url);
    query.addQueryItem(u"password"_s,
                       QString::fromLatin1(QUrl::toPercentEncoding(wanted.status_password)));
    url.setQuery(query);
    return request("GET", url, {});
}

QByteArray kannel_report_url(const QByteArray& base, message_id id) {
    return base + "report?id=" + QByteArray::number(id) + "&type=%d&ans=%A&fid=%F";
}

kannel_verdict read_submission_answer(int status, const QByteArray& body) {
    const QString words = words_of(body);
    const QString told = u"HTTP %1: %2"_s.arg(status).arg(words);
    if (status == 202 && (body.startsWith("0:") || body.startsWith("3:"))) {
        return {{handover_result::accepted, {}, {}, {}}};
    }
    if (status == 503) {
        return {{handover_result::not_now, {}, words, {}}};
    }
    // Kannel takes every message from us for these, so they are not about this one.
    const bool is_ours = words.startsWith(u"Sender missing") || words.startsWith(u"DLR-URL");
    if (status == 400 && !is_ours) {
        return {{handover_result::refused, {}, words, kannel_failure_cause(words)}};
    }
    if (status >= 300 && status < 500) {
        return {{handover_result::not_now, {}, told, {}}, true};
    }
    return {{handover_result::unknown, {}, told, {}}};
}

QString read_probe_answer(int status, const QByteArray& body) {
    if (status == 400 && body.startsWith("Missing receiver")) {
        return {};
    }
    if (status == 403) {
        return texts::tr("Kannel does not know this user name and password");
    }
    if (status == 503) {
        return texts::tr("Kannel is not ready: %1").arg(words_of(body));
    }
    return texts::tr("this is no sendsms of Kannel (HTTP %1: %2)").arg(status).arg(words_of(body));
}

failure_cause kannel_failure_cause(const QString& words) {
    using enum failure_cause;
    // The first that fits; the particular before the general.
    static constexpr std::array known{std::pair(u"retries exceeded", expired),
                                      std::pair(u"expired", expired),
                                      std::pair(u"absent", absent),
                                      std::pair(u"unreachable", absent),
                                      std::pair(u"undeliv", absent),
                                      std::pair(u"switched off", absent),
                                      std::pair(u"black", blocked),
                                      std::pair(u"barred", blocked),
                                      std::pair(u"blocked", blocked),
                                      std::pair(u"opt-out", blocked),
                                      std::pair(u"content", content),
                                      std::pair(u"spam", content),
                                      std::pair(u"filter", content),
                                      std::pair(u"template", content),
                                      std::pair(u"credit", credit),
                                      std::pair(u"balance", credit),
                                      std::pair(u"quota", credit),
                                      std::pair(u"destination", bad_number),
                                      std::pair(u"number", bad_number),
                                      std::pair(u"unknown subscriber", bad_number)};
    const auto found = std::find_if(known.begin(), known.end(), [&words](const auto& one) {
        return words.contains(QStringView(one.first), Qt::CaseInsensitive);
    });
    return found == known.end() ? unspecified : found->second;
}

} // namespace gateway
