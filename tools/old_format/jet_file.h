// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/command.h"

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

#include <memory>
#include <optional>

// What libmdb's header includes between C brackets does not compile as C++ there.
#include <glib.h>
//
#include <mdbtools.h>

namespace old_format {

/// A file is damaged; the reason tells how.
class damaged : public failure {
public:
    using failure::failure;
};

/// A database file in the Jet 3 or Jet 4 format, open for reading. The library underneath trusts
/// what stands in the file: a damaged one may crash it or keep it busy for ever, so it belongs into
/// a process of its own.
class jet_file {
public:
    /// The part of a row's entry in its page that tells where it stands; above it are its flags.
    static constexpr int offset_mask = 0x1fff;

    /// `charset` is what the texts of a Jet 3 file are written in. Throws damaged, or failure when
    /// it is no such file.
    jet_file(const QString& path, const QString& charset);

    /// A text as the file holds it; nothing when it is cut. Characters that cannot be read become
    /// U+FFFD.
    [[nodiscard]] std::optional<QString> text(QByteArrayView stored);

    /// A long text, found through what its row holds of it; nothing when it is damaged.
    [[nodiscard]] std::optional<QString> long_text(QByteArrayView field);

    [[nodiscard]] MdbHandle* handle() const { return handle_.get(); }

private:
    /// A piece of a long text, valid until the next is looked up; nothing when there is none.
    [[nodiscard]] std::optional<QByteArrayView> piece(quint32 page_and_row);

    struct closer {
        void operator()(MdbHandle* handle) const noexcept { mdb_close(handle); }
    };
    std::unique_ptr<MdbHandle, closer> handle_;
    QStringDecoder decoder_;
};

} // namespace old_format
