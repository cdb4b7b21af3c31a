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

/// The roles of a palette that make a theme.
struct Colors
{
    QRgb window, windowText, base, alternateBase, button, light, mid, dark, highlight,
        highlightedText, disabledText, link;
};

constexpr Colors kLight { 0xfff2f3f5, 0xff1d2126, 0xffffffff, 0xfff5f6f8, 0xffe7e9ec, 0xffffffff,
                          0xffc3c7cd, 0xffa3a8b0, 0xff2f7fc4, 0xffffffff, 0xff9aa0a8, 0xff1f6fb2 };
constexpr Colors kDark { 0xff2f3238, 0xffe4e6ea, 0xff1d2024, 0xff26292e, 0xff363a41, 0xff4a4f58,
                         0xff1d1f23, 0xff17191c, 0xff3f88c8, 0xffffffff, 0xff777d86, 0xff6fb6ee };

constexpr QRgb kAccentOnLight = 0xff1a6db8;
constexpr QRgb kAccentOnDark = 0xff62b0f0;

/// Half of the values that a lightness can have.
constexpr int kMiddleLightness = 128;

QPalette paletteOf(const Colors& colors)
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb rgb) {
        palette.setColor(role, QColor::fromRgb(rgb));
    };
    set(QPalette::Window, colors.window);
    set(QPalette::WindowText, colors.windowText);
    set(QPalette::Base, colors.base);
    set(QPalette::AlternateBase, colors.alternateBase);
    set(QPalette::Text, colors.windowText);
    set(QPalette::Button, colors.button);
    set(QPalette::ButtonText, colors.windowText);
    set(QPalette::BrightText, colors.highlightedText);
    set(QPalette::ToolTipBase, colors.base);
    set(QPalette::ToolTipText, colors.windowText);
    set(QPalette::PlaceholderText, colors.disabledText);
    set(QPalette::Light, colors.light);
    set(QPalette::Midlight, colors.button);
    set(QPalette::Mid, colors.mid);
    set(QPalette::Dark, colors.dark);
    set(QPalette::Shadow, colors.dark);
    set(QPalette::Highlight, colors.highlight);
    set(QPalette::HighlightedText, colors.highlightedText);
    set(QPalette::Link, colors.link);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(colors.disabledText));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(colors.mid));
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
    for (const Theme theme : { Theme::Light, Theme::Dark }) {
        if (name == themeName(theme)) {
            return theme;
        }
    }
    return Theme::System;
}

void applyTheme(Theme theme)
{
    const Desktop& given = desktop();
    const bool isSystem = theme == Theme::System;
    // Styles of desktops draw with colours of their own, so a palette shows as meant in Qt's only.
    const QString style = isSystem ? given.style : QStringLiteral("fusion");
    if (QApplication::style()->objectName().compare(style, Qt::CaseInsensitive) != 0) {
        QApplication::setStyle(style);
    }
    const QPalette palette =
        isSystem ? given.palette : paletteOf(theme == Theme::Dark ? kDark : kLight);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

bool isDarkPalette()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor accentColor()
{
    return QColor::fromRgb(isDarkPalette() ? kAccentOnDark : kAccentOnLight);
}

}  // namespace viewer
