// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/status_views.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// A figure: its name for programs, what it is, and its label on the page.
struct figure {
    QString name;
    QString meaning;
    QString label;
    qint64 value = 0;
};

std::array<figure, 6> figures_of(const gateway_status& status) {
    return {{
        {u"clients"_s, u"Clients that are connected."_s, u"连着的程序"_s, status.clients},
        {u"waiting"_s, u"Messages that wait for the network."_s, u"等着发"_s, status.waiting},
        {u"sent_today"_s, u"Messages that the network took today."_s, u"今天已发"_s,
         status.sent_today},
        {u"failed_today"_s, u"Messages that came to nothing today."_s, u"今天失败"_s,
         status.failed_today},
        {u"unknown"_s, u"Messages of which it is not known whether the network has them."_s,
         u"不知下落"_s, status.unknown},
        {u"held"_s, u"Received messages that no client has yet."_s, u"待取的来信"_s, status.held},
    }};
}

QString label_of(message_state state) {
    switch (state) {
    case message_state::queued:
        return u"等着发"_s;
    case message_state::handing:
        return u"正在交给网络"_s;
    case message_state::unknown:
        return u"不知下落"_s;
    case message_state::accepted:
        return u"网络已收下"_s;
    case message_state::delivered:
        return u"已送达"_s;
    case message_state::failed:
        return u"失败"_s;
    case message_state::dropped:
        break;
    }
    return u"已放弃"_s;
}

QString time_text(qint64 milliseconds) {
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

/// Somebody's text: as it stands, whatever is in it, and not turning what stands around it.
QString quoted(const QString& text) {
    return u"<bdi>"_s + text.toHtmlEscaped() + u"</bdi>"_s;
}

QString figure_boxes(const gateway_status& status) {
    QString boxes;
    for (const figure& one : figures_of(status)) {
        boxes += u"<div class=\"figure %1\"><b>%2</b>%3</div>\n"_s.arg(
            one.value > 0 ? one.name : u"none"_s, QString::number(one.value), one.label);
    }
    return boxes;
}

QString message_rows(const gateway_status& status) {
    QString rows;
    for (const status_message& one : status.messages) {
        rows += u"<tr><td>%1<td>%2<td>%3<td class=\"text\">%4<td class=\"%5\">%6<td>%7\n"_s.arg(
            QString::number(one.id), time_text(one.taken_at), quoted(one.mobile), quoted(one.text),
            name_of(one.state), label_of(one.state), quoted(one.reason));
    }
    return rows.isEmpty() ? u"<tr><td colspan=\"6\">还没有短信\n"_s : rows;
}

QString received_table(const gateway_status& status) {
    QString rows;
    for (const held_message& one : status.received) {
        rows += u"<tr><td>%1<td>%2<td class=\"text\">%3\n"_s.arg(
            time_text(one.at), quoted(one.sender), quoted(one.text));
    }
    return rows.isEmpty()
               ? QString()
               : u"<h2>待取的来信</h2>\n<p>程序连上来就交给它，一条一条地交。</p>\n<table>\n<tr><th>时间<th>号码<th>短信\n%1</table>\n"_s
                     .arg(rows);
}

QString advice(const gateway_status& status) {
    QString lines;
    if (!status.store_fault.isEmpty()) {
        lines +=
            u"<p class=\"bad\">存短信的文件现在读不了：%1</p>\n"_s.arg(quoted(status.store_fault));
    }
    if (status.unknown > 0) {
        lines +=
            u"<p>“不知下落”的短信，交给网络时断了，不知道发出去没有，网关不会自己再发。问过客户，要再发一遍的运行 <code>smsgateway resend 编号</code>，不再发的运行 <code>smsgateway drop 编号</code>（操作手册第 9 节）。</p>\n"_s;
    }
    return lines;
}

constexpr QStringView page = uR"(<!DOCTYPE html>
<html lang="zh-CN">
<head>
<meta charset="utf-8">
<meta http-equiv="refresh" content="5">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>短信网关</title>
<style>
body { margin: 1.5em auto; max-width: 70em; padding: 0 1em; font: 15px/1.5 sans-serif; color: #222; }
h1 { font-size: 1.5em; margin: 0; }
h2 { font-size: 1.15em; margin: 1.5em 0 .3em; }
.figures { display: flex; flex-wrap: wrap; gap: .7em; margin: 1em 0; }
.figure { border: 1px solid #ccc; border-radius: 6px; padding: .4em 1em; min-width: 6.5em; text-align: center; }
.figure b { display: block; font-size: 1.6em; line-height: 1.3; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid #ddd; padding: .3em .6em; text-align: left; vertical-align: top; white-space: nowrap; }
th { background: #f3f3f3; }
td.text, td:last-child { white-space: normal; overflow-wrap: anywhere; }
td:last-child { min-width: 8em; }
.good, .delivered, .accepted { color: #17692f; }
.bad, .failed, .unknown, .failed_today { color: #b3261e; font-weight: bold; }
</style>
</head>
<body>
<h1>短信网关</h1>
<p>%1 的情况，每 5 秒自己更新一次。</p>
<p>网络（%2）：<span class="%3">%4</span> %5</p>
%6<div class="figures">
%7</div>
<h2>最近的短信</h2>
<table>
<tr><th>编号<th>收下的时间<th>号码<th>短信<th>状态<th>原因
%8</table>
%9</body>
</html>
)";

} // namespace

QByteArray status_as_page(const gateway_status& status) {
    return page.toString()
        .arg(time_text(status.now), status.engine, status.network.up ? u"good"_s : u"bad"_s,
             status.network.up ? u"通着"_s : u"不通"_s, quoted(status.network.text), advice(status),
             figure_boxes(status), message_rows(status), received_table(status))
        .toUtf8();
}

QByteArray status_as_json(const gateway_status& status) {
    const auto time = [](qint64 at) {
        return QDateTime::fromMSecsSinceEpoch(at).toString(Qt::ISODateWithMs);
    };
    QJsonArray messages;
    for (const status_message& one : status.messages) {
        messages.append(QJsonObject{{u"id"_s, one.id},
                                    {u"time"_s, time(one.taken_at)},
                                    {u"mobile"_s, one.mobile},
                                    {u"text"_s, one.text},
                                    {u"state"_s, name_of(one.state)},
                                    {u"reason"_s, one.reason}});
    }
    QJsonArray received;
    for (const held_message& one : status.received) {
        received.append(QJsonObject{
            {u"time"_s, time(one.at)}, {u"sender"_s, one.sender}, {u"text"_s, one.text}});
    }
    QJsonObject all{{u"time"_s, time(status.now)},
                    {u"engine"_s, status.engine},
                    {u"network_up"_s, status.network.up},
                    {u"network"_s, status.network.text},
                    {u"store_fault"_s, status.store_fault},
                    {u"messages"_s, messages},
                    {u"received"_s, received}};
    for (const figure& one : figures_of(status)) {
        all.insert(one.name, one.value);
    }
    return QJsonDocument(all).toJson();
}

QByteArray status_as_metrics(const gateway_status& status) {
    const QString gauge =
        u"# HELP smsgateway_%1 %2\n# TYPE smsgateway_%1 gauge\nsmsgateway_%1 %3\n"_s;
    QString all =
        gauge.arg(u"network_up"_s, u"Whether the network takes messages."_s,
                  QString::number(status.network.up ? 1 : 0)) +
        gauge.arg(u"store_up"_s, u"Whether the store can be read; else the rest is not known."_s,
                  QString::number(status.store_fault.isEmpty() ? 1 : 0));
    for (const figure& one : figures_of(status)) {
        all += gauge.arg(one.name, one.meaning, QString::number(one.value));
    }
    return all.toUtf8();
}

} // namespace gateway
