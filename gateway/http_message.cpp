// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/http_message.h"

#include <algorithm>

namespace gateway {

namespace {

constexpr QByteArrayView line_end = "\r\n";
constexpr QByteArrayView head_end = "\r\n\r\n";

// Written out, because the toolkit's own also take other alphabets' digits or signs.
bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

bool is_name(const QByteArray& name) {
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](char c) {
        return c > ' ' && c < '\x7f' && c != ':' && c != '"' && c != '(' && c != ',';
    });
}

/// What stands before `at`, or all when there is no such place.
QByteArray before(const QByteArray& text, qsizetype at) {
    return at < 0 ? text : text.first(at);
}

bool is_printable(QByteArrayView line) {
    return std::none_of(line.begin(), line.end(), [](char c) {
        return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == '\x7f';
    });
}

/// The two digits of an escape at `at`, or -1.
int escaped_byte(const QByteArray& text, qsizetype at) {
    bool ok = false;
    const auto is_hex = [](char c) {
        return is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    if (at + 2 >= text.size() || !is_hex(text[at + 1]) || !is_hex(text[at + 2])) {
        return -1;
    }
    const int byte = text.mid(at + 1, 2).toInt(&ok, 16);
    return ok ? byte : -1;
}

std::optional<QByteArray> decode(const QByteArray& text) {
    QByteArray decoded;
    decoded.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded.append(text[i] == '+' ? ' ' : text[i]);
            continue;
        }
        const int byte = escaped_byte(text, i);
        if (byte < 0) {
            return std::nullopt;
        }
        decoded.append(static_cast<char>(byte));
        i += 2;
    }
    return decoded;
}

/// The length of the body as the head tells it: nothing when it does not, -1 when it lies.
std::optional<qint64> body_length(const http_head& head) {
    qint64 length = -1;
    for (const auto& [name, value] : head.fields) {
        if (name != "content-length") {
            continue;
        }
        const bool digits = !value.isEmpty() && value.size() < 10 &&
                            std::all_of(value.begin(), value.end(), is_digit);
        if (!digits || length >= 0) {
            return -1;
        }
        length = value.toLongLong();
    }
    return length < 0 ? std::nullopt : std::optional(length);
}

/// Whether the other end keeps the connection, which it does unasked from HTTP/1.1 on.
bool keeps_open(const http_head& head, bool unasked) {
    const QByteArray wish = only_value(head.fields, "connection").value_or(QByteArray()).toLower();
    return unasked ? wish != "close" : wish == "keep-alive";
}

QByteArray reason_phrase(int status) {
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 413:
        return "Content Too Large";
    case 414:
        return "URI Too Long";
    case 503:
        return "Service Unavailable";
    case 505:
        return "HTTP Version Not Supported";
    default:
        return "Other";
    }
}

http_request_reading refuse(int status) {
    return {http_progress::broken, {}, status, 0};
}

/// The request line and what the head says of the connection and of a body.
http_request_reading read_whole_request(const http_head& head) {
    const QList<QByteArray> words = head.first_line.split(' ');
    if (words.size() != 3 || !words[1].startsWith('/')) {
        return refuse(400);
    }
    if (words[2] != "HTTP/1.1" && words[2] != "HTTP/1.0") {
        return refuse(words[2].startsWith("HTTP/") ? 505 : 400);
    }
    if (words[0] != "GET" && words[0] != "HEAD") {
        return refuse(405);
    }
    const bool chunked = std::any_of(head.fields.begin(), head.fields.end(), [](const auto& field) {
        return field.first == "transfer-encoding";
    });
    if (chunked || body_length(head).value_or(0) != 0) {
        return refuse(413);
    }
    const qsizetype mark = words[1].indexOf('?');
    const auto query = read_query(mark < 0 ? QByteArray() : words[1].sliced(mark + 1));
    const auto hosts = std::count_if(head.fields.begin(), head.fields.end(),
                                     [](const auto& field) { return field.first == "host"; });
    if (!query || hosts > 1) {
        return refuse(400);
    }
    return {http_progress::whole,
            {before(words[1], mark), *query, only_value(head.fields, "host").value_or(QByteArray()),
             words[0] == "HEAD", keeps_open(head, words[2] == "HTTP/1.1")},
            0,
            head.size};
}

} // namespace

std::optional<QByteArray> only_value(const http_fields& fields, QByteArrayView name) {
    const auto is_it = [name](const auto& field) { return field.first == name; };
    const auto found = std::find_if(fields.begin(), fields.end(), is_it);
    if (found == fields.end() || std::find_if(found + 1, fields.end(), is_it) != fields.end()) {
        return std::nullopt;
    }
    return found->second;
}

http_head read_head(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf(head_end);
    if (end < 0) {
        return {};
    }
    http_head head{http_progress::whole, {}, {}, end + head_end.size()};
    const QByteArray lines = bytes.left(end);
    qsizetype start = lines.indexOf(line_end);
    head.first_line = before(lines, start);
    bool sound = is_printable(head.first_line);
    while (sound && start >= 0) {
        start += line_end.size();
        const qsizetype next = lines.indexOf(line_end, start);
        const QByteArray line = lines.mid(start, next < 0 ? -1 : next - start);
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(std::max<qsizetype>(colon, 0));
        sound = is_name(name) && is_printable(line);
        head.fields.emplaceBack(name.toLower(), line.mid(colon + 1).trimmed());
        start = next;
    }
    head.progress = sound ? http_progress::whole : http_progress::broken;
    return head;
}

std::optional<http_fields> read_query(const QByteArray& query) {
    http_fields fields;
    if (query.isEmpty()) {
        return fields;
    }
    for (const QByteArray& pair : query.split('&')) {
        const qsizetype sign = pair.indexOf('=');
        const auto name = decode(before(pair, sign));
        const auto value = decode(sign < 0 ? QByteArray() : pair.sliced(sign + 1));
        if (!name || !value) {
            return std::nullopt;
        }
        fields.emplaceBack(*name, *value);
    }
    return fields;
}

http_request_reading read_request(const QByteArray& bytes, qsizetype most) {
    const http_head head = read_head(bytes);
    const bool too_long =
        head.progress == http_progress::incomplete ? bytes.size() >= most : head.size > most;
    if (too_long) {
        return refuse(414);
    }
    switch (head.progress) {
    case http_progress::incomplete:
        return {};
    case http_progress::broken:
        return refuse(400);
    case http_progress::whole:
        break;
    }
    return read_whole_request(head);
}

QByteArray response_bytes(const http_response& response, bool head_only, bool stays_open) {
    QByteArray bytes = "HTTP/1.1 " + QByteArray::number(response.status) + ' ' +
                       reason_phrase(response.status) + "\r\nContent-Type: " + response.type +
                       "\r\nContent-Length: " + QByteArray::number(response.body.size()) +
                       "\r\nCache-Control: no-store\r\nX-Content-Type-Options: nosniff"
                       "\r\nContent-Security-Policy: default-src 'none'; "
                       "style-src 'unsafe-inline'; frame-ancestors 'none'"
                       "\r\nConnection: " +
                       (stays_open ? "keep-alive" : "close") + "\r\n\r\n";
    return head_only ? bytes : bytes + response.body;
}

http_answer_reading read_answer(const QByteArray& bytes, bool ended) {
    http_answer_reading broken{http_progress::broken, 0, {}, false};
    const http_head head = read_head(bytes);
    if (head.progress != http_progress::whole) {
        return ended || head.progress == http_progress::broken ? broken : http_answer_reading{};
    }
    // "HTTP/1.x 202 Words"
    const QByteArray status = head.first_line.mid(9, 3);
    const auto length = body_length(head);
    if (!head.first_line.startsWith("HTTP/1.") || head.first_line.mid(8, 1) != " " ||
        status.size() != 3 || !std::all_of(status.begin(), status.end(), is_digit) ||
        length.value_or(0) < 0) {
        return broken;
    }
    const qint64 there = bytes.size() - head.size;
    if (!ended && there < length.value_or(there + 1)) {
        return {};
    }
    if (there < length.value_or(0)) {
        return broken;
    }
    return {http_progress::whole, status.toInt(), bytes.mid(head.size, length.value_or(there)),
            !ended && length && *length == there &&
                keeps_open(head, head.first_line.startsWith("HTTP/1.1"))};
}

} // namespace gateway
