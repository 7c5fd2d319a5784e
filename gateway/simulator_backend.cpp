// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/simulator_backend.h"

#include <QRandomGenerator>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

// Two characters, which a client cuts off to find the number it wrote to.
constexpr QStringView country_prefix = u"86";

} // namespace

simulator_backend::simulator_backend(const simulator_settings& settings) : settings_(settings) {}

void simulator_backend::submit(const submission& message, const outcome_handler& done) {
    const double roll = QRandomGenerator::global()->generateDouble();
    if (roll < settings_.drop_rate) {
        done(std::nullopt);
        return;
    }
    const bool fails = roll < settings_.drop_rate + settings_.fail_rate;
    const verdict result = fails ? verdict::failed : verdict::sent;
    if (settings_.delay.count() == 0) {
        settle(message, result, done);
        return;
    }
    QTimer::singleShot(settings_.delay, Qt::PreciseTimer, this,
                       [this, message, result, done] { settle(message, result, done); });
}

void simulator_backend::set_receive_handler(const receive_handler& handler) {
    receive_handler_ = handler;
}

QString simulator_backend::command(const QString& line) {
    const QString number = line.section(u' ', 1, 1);
    const QString text = line.section(u' ', 2);
    if (line.section(u' ', 0, 0) != u"recv"_s || text.isEmpty()) {
        return u"expected \"recv NUMBER TEXT\""_s;
    }
    if (!is_number(number) || number.size() <= country_prefix.size() ||
        number.size() > max_sender_length) {
        return u"\"%1\" is not a number with its country prefix"_s.arg(number);
    }
    receive(number, text);
    return {};
}

void simulator_backend::settle(const submission& message, verdict result,
                               const outcome_handler& done) {
    done(result);
    const QString sender = country_prefix.toString() + message.mobile;
    if (!settings_.echo || result != verdict::sent || sender.size() > max_sender_length) {
        return;
    }
    QTimer::singleShot(
        settings_.echo_delay, Qt::PreciseTimer, this,
        [this, sender, text = u"回复："_s + message.text] { receive(sender, text); });
}

void simulator_backend::receive(const QString& sender, const QString& text) {
    if (receive_handler_) {
        receive_handler_({sender, QDateTime::currentDateTime(), text});
    }
}

} // namespace gateway
