// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "kannel_stage.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <csignal>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

// The centre that fakesmsc plays; the provider beside it is the sample's.
const auto fake_centre = u"group = smsc\nsmsc = fake\nsmsc-id = fake\nallowed-smsc-id = fake\n"
                         "port = CHANGE-port\nconnect-allow-ip = 127.0.0.1\n\n"_s;

QString sample(const QString& name) {
    QFile file(QStringLiteral(KANNEL_SAMPLES "/%1.conf").arg(name));
    [&] { QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName())); }();
    return QString::fromUtf8(file.readAll());
}

quint16 free_port() {
    QTcpServer probe;
    return probe.listen(QHostAddress::LocalHost) ? probe.serverPort() : 0;
}

bool is_served(quint16 port) {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected(1'000);
}

QByteArray decoded(const QByteArray& text) {
    return gateway::read_query("x=" + text)->first().second;
}

QString from_wide(const QByteArray& bytes) {
    return QStringDecoder(QStringDecoder::Utf16BE).decode(bytes);
}

} // namespace

kannel_stage::kannel_stage(const QString& calls, const QString& network)
    : sendsms_port(free_port()),
      admin_port(free_port()),
      smsbox_port_(free_port()),
      fake_port_(free_port()),
      provider_port_(free_port()) {
    provider_.handle("/send", [this](const gateway::http_request& request) {
        const auto value = [&request](const char* name) {
            return QString::fromUtf8(gateway::only_value(request.query, name).value_or("?"));
        };
        at_provider.append(value("to") + u' ' + value("text"));
        return gateway::http_response{200, value("to").endsWith(u'1')   ? "1 bad number"
                                           : value("to").endsWith(u'9') ? "9 busy"
                                                                        : "0 ref-1"};
    });
    [&] {
        QCOMPARE(provider_.listen({QHostAddress(QHostAddress::LocalHost), 0}), QString());
        QVERIFY(QDir(folder_.path()).mkpath(u"spool/store"_s));
        QVERIFY(QDir(folder_.path()).mkpath(u"spool/reports"_s));
        write(u"kannel.conf"_s, sample(u"kannel"_s), calls);
        write(u"network.conf"_s,
              network.isEmpty()
                  ? fake_centre + sample(u"provider"_s) + u"allowed-smsc-id = network\n"_s
                  : sample(network),
              calls);
    }();
}

kannel_stage::~kannel_stage() {
    for (QProcess* program : {&fakesmsc_, &smsbox_, &bearerbox_}) {
        program->kill();
        program->waitForFinished();
    }
}

void kannel_stage::write(const QString& name, QString text, const QString& calls) const {
    const auto number = [](quint16 port) { return QString::number(port); };
    const QList<std::pair<QString, QString>> changes{
        {u"/etc/kannel"_s, folder_.path()},
        {u"/var/spool/kannel"_s, folder_.filePath(u"spool"_s)},
        {u"/var/log/kannel"_s, folder_.path()},
        {u"= 13000"_s, u"= "_s + number(admin_port)},
        {u"= 13001"_s, u"= "_s + number(smsbox_port_)},
        {u"= 13013"_s, u"= "_s + number(sendsms_port)},
        {u"= 13015"_s, u"= "_s + number(provider_port_)},
        {u"CHANGE-port"_s, number(fake_port_)},
        {u"CHANGE-host/"_s, u"127.0.0.1:%1/"_s.arg(provider_.place().port)},
        {u"CHANGE-address-of-the-provider"_s, u"127.0.0.1"_s},
        {u"CHANGE-password"_s, u"p a&ss=1%"_s},
        {u"http://127.0.0.1:9101/kannel/CHANGE-secret/"_s, calls},
        // Faster than in an office.
        {u"sms-resend-freq = 60"_s, u"sms-resend-freq = 1"_s},
        {u"sms-resend-retry = 1440"_s, u"sms-resend-retry = 1"_s},
        {u"http-queue-delay = 10"_s, u"http-queue-delay = 1"_s}};
    for (const auto& [from, to] : changes) {
        text.replace(from, to);
    }
    QFile file(folder_.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

void kannel_stage::run(QProcess& program, const QString& path, const QStringList& arguments) {
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.setWorkingDirectory(folder_.path());
    // However this test ends, no engine outlives it.
    program.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    program.start(path, arguments);
    QVERIFY2(program.waitForStarted(), qPrintable(path + u" is not installed"_s));
}

void kannel_stage::start_bearerbox() {
    run(bearerbox_, u"/usr/sbin/bearerbox"_s, {u"kannel.conf"_s});
    QTRY_VERIFY_WITH_TIMEOUT(is_served(admin_port) && is_served(smsbox_port_), 30'000);
}

void kannel_stage::start_smsbox() {
    run(smsbox_, u"/usr/sbin/smsbox"_s, {u"kannel.conf"_s});
    QTRY_VERIFY_WITH_TIMEOUT(is_served(sendsms_port), 30'000);
}

void kannel_stage::kill_smsbox() {
    smsbox_.kill();
    QVERIFY(smsbox_.waitForFinished());
}

void kannel_stage::start_fakesmsc() {
    run(fakesmsc_, u"/usr/lib/kannel/test/fakesmsc"_s,
        {u"-H"_s, u"127.0.0.1"_s, u"-r"_s, QString::number(fake_port_), u"-m"_s, u"0"_s,
         u"1 2 text x"_s});
}

void kannel_stage::receive(const QString& sender, const QString& text,
                           const QByteArray& header) const {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, provider_port_);
    socket.write("GET /sms?username=CHANGE-their-user&password=CHANGE-their-password&to=10690"
                 "&coding=2&charset=UTF-8&from=" +
                 QUrl::toPercentEncoding(sender) + "&text=" + QUrl::toPercentEncoding(text) +
                 (header.isEmpty() ? QByteArray() : "&udh=%" + header.toHex('%')) +
                 " HTTP/1.0\r\n\r\n");
    QTRY_VERIFY(socket.bytesAvailable() > 0);
    QVERIFY2(socket.readLine().contains(" 202 "), "Kannel takes it");
}

QStringList kannel_stage::at_fake(const QString& number) {
    heard_ += fakesmsc_.readAll();
    static const QRegularExpression line(
        u"Got message \\d+: <\\S+ (\\S+) (text|ucs-2|udh \\S+ data) (.*?)>\n"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QStringList parts;
    for (const auto& match : line.globalMatch(QString::fromUtf8(heard_))) {
        const QByteArray content = match.captured(3).toUtf8();
        if (match.captured(1) == number) {
            parts.append(match.captured(2) == u"text" ? match.captured(3)
                                                      : from_wide(decoded(content)));
        }
    }
    return parts;
}
