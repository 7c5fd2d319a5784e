// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/options.h"

#include <QCommandLineParser>

#include <limits>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

void declare_options(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Takes text messages from clients to a mobile network."_s);
    parser.addOptions({
        {{u"h"_s, u"help"_s}, u"Print this help and exit."_s},
        {{u"v"_s, u"version"_s}, u"Print the version and exit."_s},
        {u"listen"_s,
         u"Serve clients on this address; port 0 takes a free one (default 127.0.0.1:9100)."_s,
         u"address:port"_s, u"127.0.0.1:9100"_s},
        {u"backend"_s, u"The network to use; simulator is the only one yet and the default."_s,
         u"name"_s, u"simulator"_s},
        {u"fail-rate"_s, u"Probability, 0 to 1, that a message fails (default 0)."_s, u"P"_s,
         u"0"_s},
        {u"drop-rate"_s, u"Probability, 0 to 1, that a message gets no verdict (default 0)."_s,
         u"P"_s, u"0"_s},
        {u"delay"_s, u"Milliseconds before a verdict (default 0)."_s, u"ms"_s, u"0"_s},
        {u"journal"_s, u"Append a JSON line for every message to this file."_s, u"file"_s},
        {u"control"_s,
         u"Read commands from this FIFO as well as from standard input. The command "
         "\"recv NUMBER TEXT\" lets a message arrive."_s,
         u"fifo"_s},
        {u"echo"_s, u"Answer every sent message with a received one."_s},
        {u"echo-delay"_s, u"Milliseconds before such an answer (default 1000)."_s, u"ms"_s,
         u"1000"_s},
    });
}

// Reads option values one after another and keeps the first complaint.
class value_reader {
public:
    explicit value_reader(const QCommandLineParser& parser) : parser_(parser) {}

    [[nodiscard]] const QString& error() const { return error_; }

    void refuse(const QString& name, const QString& expected) {
        if (error_.isEmpty()) {
            error_ = u"--%1 %2: expected %3"_s.arg(name, parser_.value(name), expected);
        }
    }

    double rate(const QString& name) {
        bool ok = false;
        const double value = parser_.value(name).toDouble(&ok);
        // Written so that "nan" is refused too.
        if (!(ok && value >= 0 && value <= 1)) {
            refuse(name, u"a probability from 0 to 1"_s);
        }
        return value;
    }

    std::chrono::milliseconds duration(const QString& name) {
        bool ok = false;
        const int value = parser_.value(name).toInt(&ok);
        if (!ok || value < 0) {
            refuse(name, u"milliseconds, 0 to %1"_s.arg(std::numeric_limits<int>::max()));
        }
        return std::chrono::milliseconds(value);
    }

    void endpoint(const QString& name, QHostAddress& address, quint16& port) {
        const QString value = parser_.value(name);
        const qsizetype colon = value.lastIndexOf(u':');
        QString host = value.left(colon);
        if (host.startsWith(u'[') && host.endsWith(u']')) {
            host = host.sliced(1, host.size() - 2);
        }
        bool ok = false;
        port = QStringView(value).sliced(colon + 1).toUShort(&ok);
        if (colon < 0 || !ok || !address.setAddress(host)) {
            refuse(name, u"an IP address, a colon and a port from 0 to 65535"_s);
        }
    }

    // An option that may be left out, but not be given empty.
    QString path(const QString& name) {
        QString value = parser_.value(name);
        if (parser_.isSet(name) && value.isEmpty()) {
            refuse(name, u"the name of a file"_s);
        }
        return value;
    }

private:
    const QCommandLineParser& parser_;
    QString error_;
};

} // namespace

std::variant<options, printed_text, usage_error> parse_options(const QStringList& arguments) {
    QCommandLineParser parser;
    declare_options(parser);
    if (!parser.parse(arguments)) {
        return usage_error{parser.errorText()};
    }
    if (parser.isSet(u"help"_s)) {
        return printed_text{parser.helpText()};
    }
    if (parser.isSet(u"version"_s)) {
        return printed_text{u"%1 %2\n"_s.arg(QCoreApplication::applicationName(),
                                             QCoreApplication::applicationVersion())};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return usage_error{u"unexpected argument: %1"_s.arg(parser.positionalArguments().first())};
    }

    value_reader values(parser);
    options wanted;
    values.endpoint(u"listen"_s, wanted.address, wanted.port);
    if (parser.value(u"backend"_s) != u"simulator"_s) {
        values.refuse(u"backend"_s, u"simulator"_s);
    }
    wanted.simulator = {.fail_rate = values.rate(u"fail-rate"_s),
                        .drop_rate = values.rate(u"drop-rate"_s),
                        .delay = values.duration(u"delay"_s),
                        .echo = parser.isSet(u"echo"_s),
                        .echo_delay = values.duration(u"echo-delay"_s)};
    wanted.journal_path = values.path(u"journal"_s);
    wanted.control_path = values.path(u"control"_s);
    if (!values.error().isEmpty()) {
        return usage_error{values.error()};
    }
    return wanted;
}

} // namespace gateway
