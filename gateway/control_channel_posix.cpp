// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/control_channel.h"

#include "gateway/texts.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace gateway {

int control_channel::open_fifo(const QString& path, QString& reason) {
    // Opened for writing as well: the end of the last writer is then not the end of the FIFO.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        reason = qt_error_string(errno);
        return -1;
    }
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISFIFO(status.st_mode)) {
        ::close(descriptor);
        reason = texts::tr("it is no FIFO");
        return -1;
    }
    return descriptor;
}

control_channel::control_channel(int descriptor)
    : descriptor_(descriptor), notifier_(descriptor, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &control_channel::read_some);
}

control_channel::~control_channel() {
    notifier_.setEnabled(false);
    ::close(descriptor_);
}

void control_channel::read_some() {
    std::array<char, 4'096> chunk{};
    const ssize_t count = ::read(descriptor_, chunk.data(), chunk.size());
    if (count > 0) {
        unread_.append(chunk.data(), count);
        take_lines();
        return;
    }
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return;
    }
    notifier_.setEnabled(false);
    take_line(std::exchange(unread_, {}));
}

void control_channel::take_lines() {
    for (qsizetype end = unread_.indexOf('\n'); end >= 0; end = unread_.indexOf('\n')) {
        const QByteArray line = unread_.first(end);
        unread_.remove(0, end + 1);
        take_line(line);
    }
    if (unread_.size() > max_line_bytes) {
        if (!std::exchange(skipping_, true)) {
            emit line_refused(texts::tr("the line is too long"));
        }
        unread_.clear();
    }
}

void control_channel::take_line(QByteArray line) {
    // The end of a line whose start was already refused.
    if (std::exchange(skipping_, false)) {
        return;
    }
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    if (!line.isValidUtf8()) {
        emit line_refused(texts::tr("the line is not UTF-8"));
    } else if (!line.isEmpty()) {
        emit line_read(QString::fromUtf8(line));
    }
}

} // namespace gateway
