// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <optional>
#include <utility>

namespace gateway {

// What is read and written of HTTP: pure functions over bytes, shared by the server and the client.
// Bodies are read by their length or to the end of the connection, never in chunks: the client
// speaks HTTP/1.0, which has none, and requests to the server have no body at all.

/// Names and values in the order in which they came.
using http_fields = QList<std::pair<QByteArray, QByteArray>>;

/// The value of the only field of this name; nothing when there is none or more than one.
[[nodiscard]] std::optional<QByteArray> only_value(const http_fields& fields, QByteArrayView name);

/// How far the reading of a message got.
enum class http_progress { incomplete, whole, broken };

/// What stands before the body of a message.
struct http_head {
    http_progress progress = http_progress::incomplete;
    QByteArray first_line;
    http_fields fields; ///< names in small letters
    qsizetype size = 0; ///< bytes up to the body
};

/// Reads the head of a message from its beginning.
[[nodiscard]] http_head read_head(const QByteArray& bytes);

/// A request without a body.
struct http_request {
    QByteArray path;         ///< as it was sent, without the query
    http_fields query;       ///< decoded bytes, of any character set
    QByteArray host;         ///< by which name the client calls this server; may be missing
    bool head_only = false;  ///< the answer goes without its body
    bool stays_open = false; ///< the client may send another
};

/// Reads "a=b&c=d"; nothing when an escape in it is broken.
[[nodiscard]] std::optional<http_fields> read_query(const QByteArray& query);

struct http_request_reading {
    http_progress progress = http_progress::incomplete;
    http_request request = {};
    int refusal = 0;    ///< the status that tells why it is broken
    qsizetype size = 0; ///< bytes that a whole request took
};

/// Reads a request from its beginning: GET or HEAD, no body, up to `most` bytes.
[[nodiscard]] http_request_reading read_request(const QByteArray& bytes, qsizetype most);

/// What a handler answers. The type stands in the head as it is.
struct http_response {
    int status = 200;
    QByteArray body = {};
    QByteArray type = "text/plain; charset=utf-8";
};

/// The bytes of a response.
[[nodiscard]] QByteArray response_bytes(const http_response& response, bool head_only,
                                        bool stays_open);

/// What a server answered.
struct http_answer_reading {
    http_progress progress = http_progress::incomplete;
    int status = 0;
    QByteArray body = {};
    bool stays_open = false; ///< the server takes another request on this connection
};

/// Reads an answer from its beginning; `ended` when no more bytes will come.
[[nodiscard]] http_answer_reading read_answer(const QByteArray& bytes, bool ended);

} // namespace gateway
