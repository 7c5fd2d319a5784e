// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/window_placement.h"

#include "app/application_title.h"
#include "platform/settings_store.h"
#include "platform/twips.h"
#include "platform/widgets/msgbox.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct setting {
    QString key;
    float fallback; ///< twips
};

const std::array<setting, 4>& settings() {
    static const std::array<setting, 4> all{{{u"MainLeft"_s, 1000},
                                             {u"MainTop"_s, 1000},
                                             {u"MainWidth"_s, 6500},
                                             {u"MainHeight"_s, 6500}}};
    return all;
}

constexpr float farthest = 1e6F; // twips; some hundred screens away

/// The four settings in twips, or nothing when one of them is no usable number.
std::optional<std::array<float, 4>> read_settings() {
    std::array<float, 4> values{};
    for (size_t i = 0; i < values.size(); ++i) {
        const setting& wanted = settings()[i];
        bool ok = false;
        values[i] = settings_store::get(application_title(), settings_section(), wanted.key,
                                        QString::number(wanted.fallback))
                        .toFloat(&ok);
        if (!ok || !std::isfinite(values[i]) || std::abs(values[i]) > farthest) {
            return std::nullopt;
        }
    }
    return values;
}

bool is_on_a_screen(const QRect& window) {
    const QRect title_bar(window.topLeft(), QSize(window.width(), 30));
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&title_bar](const QScreen* screen) {
        return screen->availableGeometry().intersects(title_bar);
    });
}

} // namespace

void restore_placement(QWidget& window) {
    auto values = read_settings();
    if (!values) {
        msgbox::information(u"窗口位置的设置不是数字，已恢复为默认值。"_s, u"系统提示"_s);
        values.emplace();
        std::transform(settings().begin(), settings().end(), values->begin(),
                       [](const setting& wanted) { return wanted.fallback; });
    }
    const auto pixels = [&window, &values](size_t i) {
        return twips::to_pixels(values->at(i), window.logicalDpiX());
    };
    QRect place(pixels(0), pixels(1), qMax(pixels(2), 1), qMax(pixels(3), 1));
    if (!is_on_a_screen(place)) {
        place.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    }
    window.move(place.topLeft());
    window.resize(place.size());
}

void save_placement(const QWidget& window) {
    if (window.isMinimized()) {
        return;
    }
    const std::array<int, 4> pixels{window.x(), window.y(), window.width(), window.height()};
    for (size_t i = 0; i < pixels.size(); ++i) {
        settings_store::save(application_title(), settings_section(), settings()[i].key,
                             QString::number(twips::from_pixels(pixels[i], window.logicalDpiX())));
    }
}
