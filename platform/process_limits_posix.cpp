// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/process_limits.h"

#include <csignal>

#include <sys/resource.h>

namespace {

void limit(__rlimit_resource resource, rlim_t most) {
    const rlimit both{most, most};
    ::setrlimit(resource, &both);
}

} // namespace

void limit_this_process(qint64 memory_bytes, int processor_seconds) {
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, static_cast<rlim_t>(processor_seconds));
    if (memory_bytes > 0) {
        limit(RLIMIT_AS, static_cast<rlim_t>(memory_bytes));
    }
}

void survive_file_size_limit() {
    std::signal(SIGXFSZ, SIG_IGN);
}
