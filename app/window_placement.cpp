// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/window_placement.h"

#include "app/application_title.h"
#include "platform/settings_store.h"
#include "platform/twips.h"
#include "platform/widgets/msgbox.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QStyle>
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

/// The window's own frame is known only when it is shown.
QSize usual_frame(const QStyle& style) {
    const int border = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return {2 * border, style.pixelMetric(QStyle::PM_TitleBarHeight) + border};
}

/// Where the frame begins and how large the window in it is: as wished when the screens show all of
/// it, else what fits one of them, the one with its middle or the first. `frame` is what the frame
/// adds to the size.
QRect bound_to_screens(const QRect& place, const QSize& frame) {
    QRegion hidden({place.topLeft(), place.size() + frame});
    for (const QScreen* screen : QGuiApplication::screens()) {
        hidden -= screen->availableGeometry();
    }
    if (hidden.isEmpty()) {
        return place;
    }
    const QScreen* nearest = QGuiApplication::screenAt(place.center());
    const QRect room =
        (nearest == nullptr ? QGuiApplication::primaryScreen() : nearest)->availableGeometry();
    const QSize size = place.size().boundedTo(room.size() - frame);
    const QPoint last =
        QRect(room.topLeft(), room.size() - frame - size + QSize(1, 1)).bottomRight();
    return {
        {qBound(room.left(), place.left(), last.x()), qBound(room.top(), place.top(), last.y())},
        size};
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
    const QRect place =
        bound_to_screens({pixels(0), pixels(1), qMax(pixels(2), 1), qMax(pixels(3), 1)},
                         usual_frame(*window.style()));
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
