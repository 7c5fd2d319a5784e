// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/setting_values.h"

#include "gateway/texts.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

QString choose(const QString& value, bool& target) {
    const bool on = value == u"yes" || value == u"true" || value == u"on" || value == u"1";
    const bool off = value == u"no" || value == u"false" || value == u"off" || value == u"0";
    target = on || (target && !off);
    return on || off ? QString() : texts::tr("yes or no");
}

QString set_text(const QString& value, QString& target) {
    target = value;
    return {};
}

QString set_int(const QString& value, int& target, int least, int most) {
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok || number < least || number > most) {
        return texts::tr("a whole number from %1 to %2").arg(least).arg(most);
    }
    target = number;
    return {};
}

QString set_rate(const QString& value, double& target) {
    bool ok = false;
    const double rate = value.toDouble(&ok);
    // Written so that "nan" is refused too.
    if (!(ok && rate >= 0 && rate <= 1)) {
        return texts::tr("a probability from 0 to 1");
    }
    target = rate;
    return {};
}

template <class Duration>
QString set_time(const QString& value, Duration& target, int least = 0) {
    int count = 0;
    QString fault = set_int(value, count, least, std::numeric_limits<int>::max());
    target = fault.isEmpty() ? Duration(count) : target;
    return fault;
}

QString set_endpoint(const QString& value, endpoint& target) {
    const qsizetype colon = value.lastIndexOf(u':');
    QString host = value.left(colon);
    if (host.startsWith(u'[') && host.endsWith(u']')) {
        host = host.sliced(1, host.size() - 2);
    }
    bool ok = false;
    const quint16 port = QStringView(value).sliced(colon + 1).toUShort(&ok);
    QHostAddress address;
    if (colon < 0 || !ok || !address.setAddress(host)) {
        return texts::tr("an IP address, a colon and a port from 0 to 65535");
    }
    target = {address, port};
    return {};
}

QString set_url(const QString& value, QUrl& target) {
    const QUrl url(value, QUrl::StrictMode);
    if (!value.isEmpty() && (!url.isValid() || url.scheme() != u"http" || url.host().isEmpty())) {
        return texts::tr("an address that begins with http://");
    }
    target = url;
    return {};
}

QString set_digits(const QString& value, QString& target, qsizetype most) {
    static const QRegularExpression digits(u"\\A[0-9]*\\z"_s);
    if (value.size() > most || !digits.match(value).hasMatch()) {
        return texts::tr("up to %1 digits").arg(most);
    }
    target = value;
    return {};
}

/// A part of an address that another program writes into its own settings.
QString set_secret(const QString& value, QString& target) {
    static const QRegularExpression letters(u"\\A[A-Za-z0-9_-]{16,200}\\z"_s);
    if (!value.isEmpty() && !letters.match(value).hasMatch()) {
        return texts::tr(R"(16 to 200 letters of English, digits, "_" and "-")");
    }
    target = value;
    return {};
}

QString set_patterns(const QString& value, QStringList& target) {
    static const QRegularExpression pattern(u"\\A[0-9x]+\\*?\\z"_s);
    QStringList patterns;
    for (const QString& one : value.split(u',', Qt::SkipEmptyParts)) {
        patterns.append(one.trimmed());
        if (!pattern.match(patterns.last()).hasMatch()) {
            return texts::tr(
                "numbers with \"x\" for any digit, \"*\" at the end for more of them, and "
                "commas between");
        }
    }
    target = patterns;
    return {};
}

/// One of several words.
template <class Choice, std::size_t count>
QString set_choice(const QString& value, Choice& target,
                   const std::array<std::pair<QStringView, Choice>, count>& choices) {
    QStringList names;
    for (const auto& [name, choice] : choices) {
        if (value == name) {
            target = choice;
            return {};
        }
        names.append(name.toString());
    }
    return texts::tr("one of: %1").arg(names.join(u", "_s));
}

constexpr std::array engines{
    std::pair<QStringView, engine_name>{u"simulator", engine_name::simulator},
    std::pair<QStringView, engine_name>{u"kannel", engine_name::kannel},
    std::pair<QStringView, engine_name>{u"gammu", engine_name::gammu}};
constexpr std::array failures{
    std::pair<QStringView, told_failures>{u"all", told_failures::all},
    std::pair<QStringView, told_failures>{u"refused", told_failures::refused},
    std::pair<QStringView, told_failures>{u"none", told_failures::none}};
constexpr std::array drivers{
    std::pair<QStringView, sql_driver>{u"sqlite", sql_driver::sqlite},
    std::pair<QStringView, sql_driver>{u"postgresql", sql_driver::postgresql}};

struct setting {
    QStringView name;
    QString (*apply)(settings& all, const QString& value) = nullptr;
};

// clang-format off
using values = settings;
using text = const QString;
constexpr std::array known{
    setting{u"gateway/engine", [](values& s, text& v) { return set_choice(v, s.gateway.engine, engines); }},
    setting{u"gateway/listen", [](values& s, text& v) { return set_endpoint(v, s.gateway.listen); }},
    setting{u"gateway/state_dir", [](values& s, text& v) { return set_text(v, s.gateway.state_dir); }},
    setting{u"gateway/keep_days", [](values& s, text& v) { return set_int(v, s.gateway.keep_days, 2, 36'500); }},
    setting{u"gateway/tell_failures", [](values& s, text& v) { return set_choice(v, s.gateway.tell_failures, failures); }},
    setting{u"gateway/links_per_address", [](values& s, text& v) { return set_int(v, s.gateway.links_per_address, 1, 500); }},
    setting{u"numbers/country", [](values& s, text& v) { return set_digits(v, s.numbers.country, 3); }},
    setting{u"numbers/trunk_prefix", [](values& s, text& v) { return set_digits(v, s.numbers.trunk_prefix, 3); }},
    setting{u"numbers/mobiles", [](values& s, text& v) { return set_patterns(v, s.numbers.mobiles); }},
    setting{u"numbers/short_codes", [](values& s, text& v) { return set_patterns(v, s.numbers.short_codes); }},
    setting{u"simulator/fail_rate", [](values& s, text& v) { return set_rate(v, s.simulator.fail_rate); }},
    setting{u"simulator/lose_rate", [](values& s, text& v) { return set_rate(v, s.simulator.lose_rate); }},
    setting{u"simulator/drop_rate", [](values& s, text& v) { return set_rate(v, s.simulator.drop_rate); }},
    setting{u"simulator/not_now_rate", [](values& s, text& v) { return set_rate(v, s.simulator.not_now_rate); }},
    setting{u"simulator/delay_ms", [](values& s, text& v) { return set_time(v, s.simulator.delay); }},
    setting{u"simulator/report_delay_ms", [](values& s, text& v) { return set_time(v, s.simulator.report_delay); }},
    setting{u"simulator/echo", [](values& s, text& v) { return choose(v, s.simulator.echo); }},
    setting{u"simulator/echo_delay_ms", [](values& s, text& v) { return set_time(v, s.simulator.echo_delay); }},
    setting{u"simulator/window", [](values& s, text& v) { return set_int(v, s.simulator.window, 1, 1'000); }},
    setting{u"kannel/sendsms", [](values& s, text& v) { return set_url(v, s.kannel.sendsms); }},
    setting{u"kannel/username", [](values& s, text& v) { return set_text(v, s.kannel.username); }},
    setting{u"kannel/password", [](values& s, text& v) { return set_text(v, s.kannel.password); }},
    setting{u"kannel/from", [](values& s, text& v) { return set_text(v, s.kannel.from); }},
    setting{u"kannel/smsc", [](values& s, text& v) { return set_text(v, s.kannel.smsc); }},
    setting{u"kannel/window", [](values& s, text& v) { return set_int(v, s.kannel.window, 1, 1'000); }},
    setting{u"kannel/timeout_s", [](values& s, text& v) { return set_time(v, s.kannel.timeout, 1); }},
    setting{u"kannel/callback", [](values& s, text& v) { return set_url(v, s.kannel.callback); }},
    setting{u"kannel/status", [](values& s, text& v) { return set_url(v, s.kannel.status); }},
    setting{u"kannel/status_password", [](values& s, text& v) { return set_text(v, s.kannel.status_password); }},
    setting{u"gammu/driver", [](values& s, text& v) { return set_choice(v, s.gammu.driver, drivers); }},
    setting{u"gammu/database", [](values& s, text& v) { return set_text(v, s.gammu.database); }},
    setting{u"gammu/host", [](values& s, text& v) { return set_text(v, s.gammu.host); }},
    setting{u"gammu/port", [](values& s, text& v) { return set_int(v, s.gammu.port, 1, 65'535); }},
    setting{u"gammu/username", [](values& s, text& v) { return set_text(v, s.gammu.username); }},
    setting{u"gammu/password", [](values& s, text& v) { return set_text(v, s.gammu.password); }},
    setting{u"gammu/phone_id", [](values& s, text& v) { return set_text(v, s.gammu.phone_id); }},
    setting{u"gammu/reports", [](values& s, text& v) { return choose(v, s.gammu.reports); }},
    setting{u"gammu/window", [](values& s, text& v) { return set_int(v, s.gammu.window, 1, 1'000); }},
    setting{u"gammu/poll_ms", [](values& s, text& v) { return set_time(v, s.gammu.poll, 50); }},
    setting{u"http/on", [](values& s, text& v) { return choose(v, s.http.on); }},
    setting{u"http/page", [](values& s, text& v) { return choose(v, s.http.page); }},
    setting{u"http/listen", [](values& s, text& v) { return set_endpoint(v, s.http.listen); }},
    setting{u"http/secret", [](values& s, text& v) { return set_secret(v, s.http.secret); }},
};
// clang-format on

} // namespace

QString apply_setting(settings& target, const QString& name, const QString& value) {
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&name](const setting& one) { return one.name == name; });
    return found == known.end() ? texts::tr("no such setting") : found->apply(target, value);
}

QString name_of(engine_name engine) {
    const auto* found = std::find_if(engines.begin(), engines.end(),
                                     [engine](const auto& one) { return one.second == engine; });
    return found->first.toString();
}

QStringList setting_names() {
    QStringList names;
    for (const setting& one : known) {
        names.append(one.name.toString());
    }
    return names;
}

QString endpoint_text(const endpoint& place) {
    const bool is_v6 = place.address.protocol() == QAbstractSocket::IPv6Protocol;
    return (is_v6 ? u"[%1]:%2"_s : u"%1:%2"_s).arg(place.address.toString()).arg(place.port);
}

} // namespace gateway
