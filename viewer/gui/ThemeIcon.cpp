// SPDX-License-Identifier: MIT
#include "viewer/gui/ThemeIcon.h"

#include "viewer/gui/Theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

/// Resources of a static library are taken into the program only when asked for, and that in no
/// namespace.
static void initialiseIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace viewer {
namespace {

/// How much of its strength the accent keeps in an icon that is off.
constexpr double kDisabledAccent = 0.35;

QColor textColor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    default:
        return palette.color(QPalette::Active, QPalette::ButtonText);
    }
}

QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
    return { mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()) };
}

QColor accentFor(QIcon::Mode mode)
{
    switch (mode) {
    case QIcon::Disabled:
        return mixed(textColor(mode), accentColor(), kDisabledAccent);
    case QIcon::Selected:
        return textColor(mode);
    default:
        return accentColor();
    }
}

/// Draws an SVG whose colours are two words, currentColor and accentColor.
class ThemeIconEngine : public QIconEngine
{
public:
    explicit ThemeIconEngine(QByteArray source)
        : svg(std::move(source))
    { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray coloured = svg;
        coloured.replace("currentColor", textColor(mode).name().toLatin1());
        coloured.replace("accentColor", accentFor(mode).name().toLatin1());
        QSvgRenderer(coloured).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new ThemeIconEngine(*this); }

private:
    QByteArray svg;
};

}  // namespace

QIcon themeIcon(const QString& name)
{
    initialiseIcons();
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new ThemeIconEngine(file.readAll())) : QIcon();
}

}  // namespace viewer
