// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_backend.h"

#include "gateway/console.h"
#include "gateway/kannel_callbacks.h"
#include "gateway/texts.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

namespace {

/// Between two probes of a Kannel that is not there: the first, and the longest.
constexpr std::chrono::milliseconds first_pause = 1s;
constexpr std::chrono::milliseconds longest_pause = 30s;
/// Between two looks at status.xml.
constexpr std::chrono::milliseconds between_looks = 30s;
/// The same fault of a call is logged once in this time; Kannel repeats what is refused.
constexpr std::chrono::milliseconds between_complaints = 1min;

QByteArray base_of_calls(const QUrl& wanted, const http_server& calls) {
    endpoint here = calls.place();
    if (here.address == QHostAddress(QHostAddress::AnyIPv6)) {
        here.address = QHostAddress(QHostAddress::LocalHostIPv6);
    } else if (QList<QHostAddress>{QHostAddress::Any, QHostAddress::AnyIPv4}.contains(
                   here.address)) {
        here.address = QHostAddress(QHostAddress::LocalHost);
    }
    QByteArray base = wanted.isEmpty() ? "http://" + endpoint_text(here).toLatin1()
                                       : wanted.toEncoded(QUrl::RemoveQuery);
    base.chop(base.endsWith('/') ? 1 : 0);
    return base + kannel_backend::call_prefix.toByteArray();
}

QString probe_fault(const http_answer& answer) {
    return answer.status == 0 ? answer.fault : read_probe_answer(answer.status, answer.body);
}

kannel_status status_of(const http_answer& answer) {
    return answer.status == 0 ? kannel_status{texts::tr("no status.xml: %1").arg(answer.fault)}
                              : read_kannel_status(answer.status, answer.body);
}

} // namespace

kannel_backend::kannel_backend(const kannel_settings& wanted, const QString& secret,
                               http_server* calls)
    : wanted_(wanted),
      secret_(secret.toUtf8()),
      calls_(calls),
      sendsms_(wanted.sendsms, wanted.timeout),
      status_(wanted.status, wanted.timeout),
      fault_(texts::tr("not tried yet")),
      pause_(first_pause) {
    probe_.setSingleShot(true);
    connect(&probe_, &QTimer::timeout, this, &kannel_backend::probe);
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, &kannel_backend::look);
}

kannel_backend::~kannel_backend() {
    if (sink_ != nullptr) {
        calls_->handle(call_prefix.toByteArray(), {});
        calls_->gather_in({});
    }
}

void kannel_backend::start(network_sink& sink) {
    sink_ = &sink;
    call_base_ = base_of_calls(wanted_.callback, *calls_) + secret_ + '/';
    calls_->handle(call_prefix.toByteArray(),
                   [this](const http_request& request) { return take_call(request); });
    calls_->gather_in(
        [this](const std::function<bool()>& work) { return sink_->take_together(work); });
    probe();
    if (!wanted_.status_password.isEmpty()) {
        look();
    }
}

void kannel_backend::hand_over(const outgoing_message& message) {
    sendsms_.send(kannel_submission(wanted_, message, kannel_report_url(call_base_, message.id)),
                  [this, id = message.id](const http_answer& answer) { settle(id, answer); });
}

void kannel_backend::ask(message_id id) {
    const auto answer = [this, id] {
        sink_->settle(id, {handover_result::unknown,
                           {},
                           texts::tr("Kannel cannot be asked; only a report can tell"),
                           {}});
    };
    QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
}

network_health kannel_backend::health() const {
    const QString state = fault_.isEmpty() ? texts::tr("Kannel takes messages") : fault_;
    return {fault_.isEmpty(), links_ ? state + u"; "_s + tell(*links_) : state};
}

void kannel_backend::check(const std::function<void(const QString& fault)>& done) {
    const auto look_at_status = [done](const http_answer& answer) {
        const QString fault = status_of(answer).fault;
        done(fault.isEmpty() ? fault : u"kannel/status: "_s + fault);
    };
    sendsms_.send(kannel_probe(wanted_), [this, done, look_at_status](const http_answer& answer) {
        const QString fault = probe_fault(answer);
        if (!fault.isEmpty()) {
            done(u"kannel/sendsms: "_s + fault);
        } else if (wanted_.status_password.isEmpty()) {
            done({});
        } else {
            status_.send(kannel_status_request(wanted_), look_at_status);
        }
    });
}

void kannel_backend::settle(message_id id, const http_answer& answer) {
    if (answer.status == 0) {
        const handover_result result =
            answer.was_written ? handover_result::unknown : handover_result::not_now;
        mark_down(answer.fault, first_pause);
        sink_->settle(id, {result, {}, answer.fault, {}});
        return;
    }
    const kannel_verdict verdict = read_submission_answer(answer.status, answer.body);
    if (verdict.bad_settings) {
        mark_down(verdict.outcome.reason, longest_pause);
    }
    sink_->settle(id, verdict.outcome);
}

void kannel_backend::probe() {
    sendsms_.send(kannel_probe(wanted_), [this](const http_answer& answer) {
        const QString fault = probe_fault(answer);
        if (fault.isEmpty()) {
            mark_up();
            return;
        }
        mark_down(fault, pause_);
        pause_ = std::min(2 * pause_, longest_pause);
    });
}

void kannel_backend::look() {
    status_.send(kannel_status_request(wanted_), [this](const http_answer& answer) {
        look_.start(between_looks);
        const auto before = std::exchange(links_, status_of(answer)).value_or(kannel_status());
        if (std::tie(before.fault, before.links, before.online) !=
            std::tie(links_->fault, links_->links, links_->online)) {
            sink_->health_changed();
        }
    });
}

void kannel_backend::mark_up() {
    pause_ = first_pause;
    if (!std::exchange(fault_, {}).isEmpty()) {
        sink_->health_changed();
    }
}

void kannel_backend::mark_down(const QString& fault, std::chrono::milliseconds probe_after) {
    const QString told = texts::tr("Kannel takes no messages: %1").arg(fault);
    if (!probe_.isActive()) {
        probe_.start(probe_after);
    }
    if (std::exchange(fault_, told) != told) {
        sink_->health_changed();
    }
}

http_response kannel_backend::take_call(const http_request& request) {
    const auto keep = [this](const auto& told) {
        using content = std::decay_t<decltype(told)>;
        if constexpr (std::is_same_v<content, callback_fault>) {
            return refuse_call(400, told.text);
        } else {
            return sink_->take(told) ? http_response{200, "OK\n"} : http_response{503, "Later\n"};
        }
    };
    switch (which_call(QByteArrayView(request.path).sliced(call_prefix.size()), secret_)) {
    case kannel_call::none:
        break;
    case kannel_call::report:
        return std::visit(keep, read_kannel_report(request.query));
    case kannel_call::message:
        return std::visit(keep, read_kannel_message(request.query));
    }
    return refuse_call(403, texts::tr("no such address, or not its secret"));
}

http_response kannel_backend::refuse_call(int status, const QString& fault) {
    const bool is_news = std::exchange(refused_call_, fault) != fault ||
                         since_refused_call_.hasExpired(between_complaints.count());
    if (is_news) {
        since_refused_call_.start();
        complain(texts::tr("a call for Kannel was refused: %1").arg(fault));
    }
    return {status, fault.toUtf8() + '\n'};
}

} // namespace gateway
