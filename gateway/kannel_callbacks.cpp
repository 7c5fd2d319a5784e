// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_callbacks.h"

#include "gateway/kannel_request.h"
#include "gateway/texts.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// A sender is a number of up to 15 digits with its sign, or a name of up to 11 letters.
constexpr qsizetype max_sender = 64;
constexpr qsizetype max_key = 128;
constexpr qsizetype max_words = 300;

/// A part of a call that must be there once and be UTF-8.
class call_reader {
public:
    explicit call_reader(const http_fields& query) : query_(query) {}

    [[nodiscard]] QByteArray bytes(QByteArrayView name) {
        const auto value = only_value(query_, name);
        if (!value) {
            complain(texts::tr("%1 is missing or stands there twice").arg(QLatin1StringView(name)));
        }
        return value.value_or(QByteArray());
    }

    [[nodiscard]] QString text(QByteArrayView name, qsizetype most) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        QString value = decoder.decode(bytes(name));
        if (decoder.hasError() || value.size() > most || value.contains(u'\0')) {
            complain(texts::tr("%1 is no text of up to %2 characters")
                         .arg(QLatin1StringView(name))
                         .arg(most));
        }
        return value;
    }

    [[nodiscard]] qint64 number(QByteArrayView name) {
        bool ok = false;
        const QByteArray digits = bytes(name);
        const qint64 value = digits.toLongLong(&ok);
        if (!ok || value <= 0 || digits.startsWith('+')) {
            complain(texts::tr("%1 is no positive number").arg(QLatin1StringView(name)));
        }
        return value;
    }

    void complain(const QString& what) { fault_ = fault_.isEmpty() ? what : fault_; }
    [[nodiscard]] const QString& fault() const { return fault_; }

private:
    const http_fields& query_;
    QString fault_;
};

std::optional<fate> fate_of(qint64 type) {
    switch (type) {
    case 1:
        return fate::delivered;
    case 2:
        return fate::undelivered;
    case 4:
        return fate::buffered;
    case 8:
        return fate::accepted;
    case 16:
        return fate::refused;
    default:
        return std::nullopt;
    }
}

/// Words of a centre in one line, whatever their character set.
QString words_of(const http_fields& query, QByteArrayView name) {
    const QByteArray words = only_value(query, name).value_or(QByteArray());
    return QString::fromUtf8(words.left(max_words)).remove(QChar()).simplified();
}

/// What counts in a centre's receipt ("id:7 ... stat:UNDELIV err:001 text:..."), which repeats the
/// beginning of the message; other words as they are.
QString reason_of(const QString& words) {
    static const QRegularExpression receipt(u"^id:.*? stat:(\\S+)(?: err:(\\S+))?"_s);
    const auto match = receipt.match(words);
    return match.hasMatch() ? u"%1 %2"_s.arg(match.captured(1), match.captured(2)).trimmed()
                            : words;
}

QString decode_message(const QByteArray& content, const QByteArray& coding,
                       const QByteArray& charset, call_reader& call) {
    if (coding == "1") {
        return texts::tr("(a message that is no text: %1)").arg(QLatin1StringView(content.toHex()));
    }
    const bool wide = charset.compare("UTF-16BE", Qt::CaseInsensitive) == 0;
    if (!wide && !charset.isEmpty() && charset.compare("UTF-8", Qt::CaseInsensitive) != 0) {
        call.complain(texts::tr("the character set is neither UTF-8 nor UTF-16BE"));
        return {};
    }
    // Half a pair of surrogates shows as a sign of its own; a message is not refused for it.
    QStringDecoder decoder(wide ? QStringDecoder::Utf16BE : QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(content);
    if (wide ? content.size() % 2 != 0 : decoder.hasError()) {
        call.complain(texts::tr("the text is not in its character set"));
    }
    return text;
}

/// Looks at every byte whether or not one differed, so that the time tells nothing of the secret.
bool is_same(QByteArrayView left, QByteArrayView right) {
    unsigned difference = left.size() == right.size() ? 0 : 1;
    for (qsizetype i = 0; i < std::min(left.size(), right.size()); ++i) {
        difference |= static_cast<unsigned char>(left[i]) ^ static_cast<unsigned char>(right[i]);
    }
    return difference == 0 && !left.isEmpty();
}

} // namespace

std::variant<report, callback_fault> read_kannel_report(const http_fields& query) {
    call_reader call(query);
    const message_id id = call.number("id");
    const auto what = fate_of(call.number("type"));
    if (!what) {
        call.complain(texts::tr("type is none of 1, 2, 4, 8, 16"));
    }
    if (!call.fault().isEmpty()) {
        return callback_fault{call.fault()};
    }
    const bool failed = *what == fate::undelivered || *what == fate::refused;
    const QString reason = failed ? reason_of(words_of(query, "ans")) : QString();
    return report{id, *what, words_of(query, "fid"), reason, kannel_failure_cause(reason)};
}

std::variant<incoming_message, callback_fault> read_kannel_message(const http_fields& query) {
    call_reader call(query);
    incoming_message message;
    message.key = call.text("id", max_key);
    message.sender = call.text("from", max_sender).simplified();
    message.time = QDateTime::fromSecsSinceEpoch(call.number("time"));
    message.text =
        decode_message(call.bytes("text"), call.bytes("coding"), call.bytes("charset"), call);
    if (message.key.isEmpty() || message.sender.isEmpty()) {
        call.complain(texts::tr("id or from is empty"));
    }
    if (!message.time.isValid() || message.time.date().year() > 9999) {
        call.complain(texts::tr("time is no moment"));
    }
    if (!call.fault().isEmpty()) {
        return callback_fault{call.fault()};
    }
    return message;
}

kannel_call which_call(QByteArrayView path, QByteArrayView secret) {
    const qsizetype slash = path.indexOf('/');
    if (slash < 0 || !is_same(path.first(slash), secret)) {
        return kannel_call::none;
    }
    const QByteArrayView name = path.sliced(slash + 1);
    return name == "report"     ? kannel_call::report
           : name == "received" ? kannel_call::message
                                : kannel_call::none;
}

} // namespace gateway
