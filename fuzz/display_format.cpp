// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/display_format.h"
#include "fuzz/target.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

// Any format shows any value in bounded space; the formats that are offered show what they show
// just the same, and a number as the toolkit does.

namespace {

void check(const display_format& format, const QVariant& value, qsizetype most) {
    const QString shown = format.apply(value);
    expect(shown.size() <= most, "what is shown is bounded");
    expect(format.apply(value) == shown, "it is shown the same again");
}

void check_offered(const QVariant& value) {
    static const std::array offered{display_format(u"yyyy-mm-dd hh:mm:ss"_s),
                                    display_format(u"yyyy-mm-dd"_s),
                                    display_format(u"##,###.00"_s),
                                    display_format(u"###.00"_s),
                                    display_format(u"##0"_s),
                                    display_format(u"@"_s)};
    for (const display_format& format : offered) {
        const QString shown = format.apply(value);
        expect(format.apply(shown) == shown, "what is shown already stays");
    }
}

void check_number(double number) {
    static const display_format two_decimals(u"0.00"_s);
    QString expected = QString::number(number, 'f', 2);
    if (expected == "-0.00"_L1) {
        expected.remove(0, 1);
    }
    expect(two_decimals.apply(number) == expected, "a number is shown as the toolkit rounds it");
}

} // namespace

// The format, the end of a line, the value.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString input = QString::fromUtf8(view_input(data, size));
    const QString text = input.section(u'\n', 1);
    const display_format format(input.section(u'\n', 0, 0));
    // The longest number with its marks; a letter of a date gives a month's name at most.
    const qsizetype most = 512 + 16 * input.size();
    check(format, text, most);
    check_offered(text);
    bool is_number = false;
    const double number = text.toDouble(&is_number);
    if (is_number) {
        check(format, number, most);
        if (std::isfinite(number)) {
            check_offered(number);
            check_number(number);
        }
    }
    return 0;
}
