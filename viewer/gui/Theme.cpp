// SPDX-License-Identifier: MIT
#include "viewer/gui/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QToolTip>

#include <array>

namespace viewer {
namespace {

constexpr std::array<const char*, 3> kNames { "system", "light", "dark" };

/// What makes a theme; Qt finds the other shades.
struct Colors
{
    QRgb window, button, base, alternateBase, highlight, link;
};

constexpr Colors kLight { 0xfff2f3f5, 0xffe7e9ec, 0xffffffff, 0xfff5f6f8, 0xff2f7fc4, 0xff1f6fb2 };
constexpr Colors kDark { 0xff2f3238, 0xff363a41, 0xff1d2024, 0xff26292e, 0xff3f88c8, 0xff6fb6ee };

constexpr QRgb kAccentOnLight = 0xff1a6db8;
constexpr QRgb kAccentOnDark = 0xff62b0f0;

/// Half of the values that a lightness can have.
constexpr int kMiddleLightness = 128;

Theme applied = Theme::System;

QPalette paletteOf(const Colors& colors)
{
    QPalette palette(QColor::fromRgb(colors.button), QColor::fromRgb(colors.window));
    for (const auto& [role, rgb] :
         { std::pair(QPalette::Base, colors.base), std::pair(QPalette::ToolTipBase, colors.base),
           std::pair(QPalette::AlternateBase, colors.alternateBase),
           std::pair(QPalette::Highlight, colors.highlight),
           std::pair(QPalette::Link, colors.link) }) {
        palette.setColor(role, QColor::fromRgb(rgb));
    }
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipText, palette.color(QPalette::WindowText));
    return palette;
}

struct Desktop
{
    QString style;
    QPalette palette;
};

const Desktop& desktop()
{
    static const Desktop found { QApplication::style()->objectName(), QApplication::palette() };
    return found;
}

}  // namespace

QString themeName(Theme theme)
{
    return QLatin1String(kNames[static_cast<std::size_t>(theme)]);
}

Theme themeFromName(const QString& name)
{
    return name == themeName(Theme::Light) ? Theme::Light
        : name == themeName(Theme::Dark)   ? Theme::Dark
                                           : Theme::System;
}

void applyTheme(Theme theme)
{
    applied = theme;
    const Desktop& given = desktop();
    const bool isSystem = theme == Theme::System;
    // Styles of desktops draw with colours of their own, so a palette shows as meant in Qt's only.
    const QString style = isSystem ? given.style : "fusion";
    if (QApplication::style()->objectName().compare(style, Qt::CaseInsensitive) != 0) {
        QApplication::setStyle(style);
    }
    const QPalette palette =
        isSystem ? given.palette : paletteOf(theme == Theme::Dark ? kDark : kLight);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

Theme appliedTheme()
{
    return applied;
}

bool isDarkPalette()
{
    return QApplication::palette().color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor accentColor()
{
    return QColor::fromRgb(isDarkPalette() ? kAccentOnDark : kAccentOnLight);
}

}  // namespace viewer
