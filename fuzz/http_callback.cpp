// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "gateway/http_message.h"
#include "gateway/kannel_callbacks.h"

// Whatever comes in at the gateway's HTTP port, a request is read whole or not at all, and only
// what says everything it must say becomes a report or a received message, with nothing of it
// changed.

namespace {

using namespace gateway;

void check_query(const http_fields& query) {
    QByteArray written;
    for (const auto& [name, value] : query) {
        written += (written.isEmpty() ? "" : "&") + name.toPercentEncoding() + '=' +
                   value.toPercentEncoding();
    }
    expect(query.isEmpty() || read_query(written) == query, "a query reads as it was meant");
}

void check_report(const http_fields& query) {
    const auto read = read_kannel_report(query);
    if (const auto* told = std::get_if<report>(&read)) {
        expect(told->id > 0 && only_value(query, "id")->toLongLong() == told->id,
               "the report is about the message that is named");
        expect(!told->reason.contains(u'\n') && !told->ref.contains(u'\n'),
               "words come in one line");
    } else {
        expect(!std::get<callback_fault>(read).text.isEmpty(), "a refusal has its reason");
    }
}

void check_message(const http_fields& query) {
    const auto read = read_kannel_message(query);
    const auto* message = std::get_if<incoming_message>(&read);
    if (message == nullptr) {
        expect(!std::get<callback_fault>(read).text.isEmpty(), "a refusal has its reason");
        return;
    }
    expect(!message->key.isEmpty() && !message->sender.isEmpty() && message->time.isValid(),
           "a message has its key, sender and time");
    const QByteArray content = *only_value(query, "text");
    const QByteArray charset = *only_value(query, "charset");
    if (only_value(query, "coding") != "1" && charset.toLower() != "utf-16be" &&
        !content.startsWith("\xef\xbb\xbf")) {
        expect(message->text.toUtf8() == content, "nothing of the text is lost or changed");
    }
}

void check_request(const QByteArray& bytes) {
    const auto reading = read_request(bytes, 4'096);
    if (reading.progress != http_progress::whole) {
        expect((reading.progress == http_progress::broken) == (reading.refusal >= 400),
               "what is broken has its status");
        return;
    }
    expect(reading.size > 0 && reading.size <= bytes.size(), "a request takes what it has");
    expect(read_request(bytes.first(reading.size - 1), 4'096).progress == http_progress::incomplete,
           "no request is whole before its end");
    const http_request& request = reading.request;
    expect(request.path.startsWith('/'), "a request has its path");
    check_query(request.query);
    check_report(request.query);
    check_message(request.query);
    expect(which_call(request.path.sliced(1), "secret") == kannel_call::none ||
               request.path.startsWith("/secret/"),
           "no call without the secret");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = view_input(data, size);
    check_request(input);
    const auto answer = read_answer(input, true);
    expect(answer.progress != http_progress::incomplete, "an ended answer is whole or broken");
    expect(answer.progress != http_progress::whole || answer.body.size() <= input.size(),
           "a body is a part of what came");
    return 0;
}
