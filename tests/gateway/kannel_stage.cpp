// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "kannel_stage.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <csignal>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

const auto configuration =
    u"group = core\n"
    "admin-port = %1\nadmin-interface = 127.0.0.1\nadmin-password = owner\n"
    "status-password = look\nsmsbox-port = %2\nsmsbox-interface = 127.0.0.1\n"
    "store-type = spool\nstore-location = %3\ndlr-storage = internal\n"
    "sms-resend-freq = 1\nsms-resend-retry = 1\nlog-file = %3/bearerbox.log\n"
    "\ngroup = smsc\nsmsc = fake\nsmsc-id = fake\nallowed-smsc-id = fake\nport = %4\n"
    "connect-allow-ip = 127.0.0.1\n"
    "\ngroup = smsc\nsmsc = http\nsmsc-id = provider\nallowed-smsc-id = provider\n"
    "system-type = generic\nport = %5\nconnect-allow-ip = 127.0.0.1\n"
    "smsc-username = u\nsmsc-password = p\n"
    "send-url = \"http://127.0.0.1:%6/send?to=%p\"\n"
    "status-success-regex = \"^0\"\nstatus-permfail-regex = \"^1\"\n"
    "status-tempfail-regex = \"^9\"\n"
    "\ngroup = smsbox\nbearerbox-host = 127.0.0.1\nsendsms-port = %7\n"
    "sendsms-interface = 127.0.0.1\nlog-file = %3/smsbox.log\n"
    "http-request-retry = 1000\nhttp-queue-delay = 1\n"
    "\ngroup = sendsms-user\nusername = relay\npassword = \"p a&ss=1%\"\n"
    "concatenation = true\nmax-messages = 255\n"
    "\ngroup = sms-service\nkeyword = default\ncatch-all = true\n"
    "max-messages = 0\nget-url = \"%8received?id=%I&from=%p&time=%T&text=%b"
    "&coding=%c&charset=%C\"\n"_s;

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

kannel_stage::kannel_stage(const QString& calls)
    : sendsms_port(free_port()),
      admin_port(free_port()),
      smsbox_port_(free_port()),
      fake_port_(free_port()),
      provider_port_(free_port()) {
    provider_.handle("/send", [](const gateway::http_request& request) {
        const QByteArray to = gateway::only_value(request.query, "to").value_or(QByteArray());
        return gateway::http_response{200, to.endsWith('1')   ? "1 bad number"
                                           : to.endsWith('9') ? "9 busy"
                                                              : "0 taken"};
    });
    [&] {
        QCOMPARE(provider_.listen({QHostAddress(QHostAddress::LocalHost), 0}), QString());
        write_configuration(calls);
    }();
}

kannel_stage::~kannel_stage() {
    for (QProcess* program : {&fakesmsc_, &smsbox_, &bearerbox_}) {
        program->kill();
        program->waitForFinished();
    }
}

void kannel_stage::write_configuration(const QString& calls) const {
    QString text = configuration;
    const QStringList values{QString::number(admin_port),
                             QString::number(smsbox_port_),
                             folder_.path(),
                             QString::number(fake_port_),
                             QString::number(provider_port_),
                             QString::number(provider_.place().port),
                             QString::number(sendsms_port),
                             calls};
    for (qsizetype i = 0; i < values.size(); ++i) {
        text.replace(u"%%1"_s.arg(i + 1), values[i]);
    }
    QFile file(folder_.filePath(u"kannel.conf"_s));
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
    QByteArray wide;
    for (const QChar unit : text) {
        wide += '%' + QByteArray(1, static_cast<char>(unit.row())).toHex() + '%' +
                QByteArray(1, static_cast<char>(unit.cell())).toHex();
    }
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, provider_port_);
    socket.write("GET /sms?username=u&password=p&to=10690&coding=2&charset=UTF-16BE&from=" +
                 QUrl::toPercentEncoding(sender) + "&text=" + wide +
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
