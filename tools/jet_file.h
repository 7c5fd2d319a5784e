// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringDecoder>

#include <memory>
#include <optional>

// What libmdb's header includes between C brackets does not compile as C++ there.
#include <glib.h>
//
#include <mdbtools.h>

/// A database file in the Jet 3 or Jet 4 format, open for reading. The library underneath trusts
/// what stands in the file: a damaged one may crash it or keep it busy for ever, so it belongs into
/// a process of its own.
class jet_file {
public:
    /// The part of a row's entry in its page that tells where it stands; above it are its flags.
    static constexpr int offset_mask = 0x1fff;

    struct table {
        QString name;
        quint32 page = 0; ///< where its definition stands
    };

    /// `charset` is what the texts of a Jet 3 file are written in. Throws failure.
    jet_file(const QString& path, const QString& charset);

    /// The tables that hold data, in no useful order. Throws failure.
    [[nodiscard]] QList<table> tables();

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
