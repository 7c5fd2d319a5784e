// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/jet_file.h"
#include "tools/texts.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

constexpr qsizetype longest_text = 0x1000000;

template <class number>
number little_endian(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<number>(bytes.sliced(at, sizeof(number)).data());
}

/// Refuses what libmdb would not survive, with a reason that helps.
void check_header(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        throw failure(texts::tr("there is no such file"));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        throw failure(texts::tr("cannot be opened: %1").arg(file.errorString()));
    }
    const QByteArray header = file.read(21);
    const bool is_newer = header.startsWith(QByteArrayView("\0\1\0\0Standard ACE DB", 19)) ||
                          (header.size() == 21 && header.at(20) > 1);
    if (is_newer) {
        throw failure(
            texts::tr("has a newer format than that of an .mdb file; save it as one first"));
    }
    if (header.size() < 21 || !header.startsWith(QByteArrayView("\0\1\0\0Standard Jet DB", 19))) {
        throw failure(texts::tr("is no database of the old format"));
    }
    if (file.size() % (header.at(20) == 0 ? 2048 : 4096) != 0) {
        throw damaged(texts::tr("its end is missing"));
    }
}

/// Unicode of which runs below U+0100 may be kept in one byte each; a zero byte begins and ends
/// them.
QByteArray expanded(QByteArrayView bytes) {
    QByteArray text;
    bool is_short = true;
    while (!bytes.isEmpty()) {
        if (bytes.front() == '\0') {
            is_short = !is_short;
            bytes = bytes.sliced(1);
        } else {
            const qsizetype length = is_short ? 1 : qMin<qsizetype>(2, bytes.size());
            text += bytes.first(length);
            text += is_short ? QByteArrayView("\0", 1) : QByteArrayView();
            bytes = bytes.sliced(length);
        }
    }
    return text;
}

} // namespace

jet_file::jet_file(const QString& path, const QString& charset)
    : decoder_(charset.toLatin1().constData()) {
    check_header(path);
    qputenv("MDB_JET3_CHARSET", charset.toLatin1()); // for the names of columns
    handle_.reset(mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS));
    if (handle_ == nullptr) {
        throw damaged(texts::tr("its head cannot be read"));
    }
}

std::optional<QString> jet_file::text(QByteArrayView stored) {
    if (IS_JET3(handle_.get())) {
        // A character cut in half at the end shows only when something stands behind it.
        QString text = decoder_.decode(stored.toByteArray() + '\n');
        text.chop(1);
        return text;
    }
    const bool is_compressed = stored.startsWith("\xff\xfe");
    const QByteArray units = is_compressed ? expanded(stored.sliced(2)) : stored.toByteArray();
    if (units.size() % 2 != 0) {
        return {};
    }
    QString text(units.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(units.constData(), text.size(), text.data());
    const QList<uint> characters = text.toUcs4(); // where half a pair becomes U+FFFD
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.data()),
                             characters.size());
}

std::optional<QByteArrayView> jet_file::piece(quint32 page_and_row) {
    void* page = nullptr;
    int start = 0;
    size_t length = 0;
    if (mdb_find_pg_row(handle(), static_cast<int>(page_and_row), &page, &start, &length) != 0) {
        return {};
    }
    const auto* bytes = static_cast<const char*>(page);
    const bool is_deleted = start > offset_mask;
    if (is_deleted || !QByteArrayView(bytes, 8).startsWith(QByteArrayView("\1\1")) ||
        !QByteArrayView(bytes, 8).endsWith(QByteArrayView("LVAL"))) {
        return {};
    }
    return QByteArrayView(bytes + start, static_cast<qsizetype>(length));
}

std::optional<QString> jet_file::long_text(QByteArrayView field) {
    constexpr quint32 in_the_row = 0x80000000;
    constexpr quint32 in_one_piece = 0x40000000;
    if (field.isEmpty()) {
        return QString();
    }
    if (field.size() < MDB_MEMO_OVERHEAD) {
        return {};
    }
    const auto head = little_endian<quint32>(field, 0);
    auto next = little_endian<quint32>(field, 4);
    const qsizetype length = head & 0x3fffffff;
    if (length > longest_text) {
        return {};
    }
    QByteArray stored;
    if ((head & in_the_row) != 0) {
        stored = field.sliced(MDB_MEMO_OVERHEAD).toByteArray();
    } else if ((head & in_one_piece) != 0) {
        stored = piece(next).value_or(QByteArrayView()).toByteArray();
    } else {
        // Every piece brings text on, so that a chain that goes round ends too.
        while (stored.size() < length) {
            const std::optional<QByteArrayView> found = piece(next);
            if (!found || found->size() <= 4) {
                return {};
            }
            next = little_endian<quint32>(*found, 0);
            stored += found->sliced(4);
        }
    }
    return stored.size() == length ? text(stored) : std::nullopt;
}

} // namespace old_format
