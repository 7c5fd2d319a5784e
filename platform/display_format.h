// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

#include <vector>

/// A display format of a column: dates ("yyyy-mm-dd hh:mm:ss"), numbers ("##,###.00"), text ("@"),
/// with "\x" for a literal x and up to three sections for positive; negative; zero numbers.
class display_format {
public:
    display_format() = default;
    explicit display_format(const QString& format);

    /// The value as the format shows it; a value that the format does not fit is shown as it is.
    [[nodiscard]] QString apply(const QVariant& value) const;

private:
    enum class Kind { text, date, number, literal };

    struct section {
        Kind kind = Kind::text;
        QString before; ///< literal text before the placeholder
        QString after;  ///< and behind it
        QString date;   ///< the date placeholder in the toolkit's letters
        bool grouped = false;
        int least_integer_digits = 0;
        int least_decimals = 0;
        int most_decimals = 0;
    };

    [[nodiscard]] static section parse_section(QStringView text);
    [[nodiscard]] static QString to_toolkit_date(QStringView placeholder);
    static void parse_number(QStringView placeholder, section& parsed);
    [[nodiscard]] static QString format_number(const section& format, double number);
    [[nodiscard]] const section& section_for(double number) const;

    std::vector<section> sections_;
};
