// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/status.h"

#include <QByteArray>

namespace gateway {

// The status as people and programs read it: pure functions over one and the same value, in UTF-8.

/// A page in Chinese, for any browser, without a script; it loads itself again every few seconds.
[[nodiscard]] QByteArray status_as_page(const gateway_status& status);

/// An object of JSON: the figures, the link to the network, the messages with their whole texts.
[[nodiscard]] QByteArray status_as_json(const gateway_status& status);

/// The figures in the text format of Prometheus.
[[nodiscard]] QByteArray status_as_metrics(const gateway_status& status);

} // namespace gateway
