// SPDX-License-Identifier: MIT
#include "viewer/gui/ThemeIcon.h"

#include "viewer/gui/Theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>
#include <cmath>

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
    return QGuiApplication::palette().color(
        mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
        mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
}

QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
    return { mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()) };
}

QColor accentFor(QIcon::Mode mode)
{
    return mode == QIcon::Selected ? textColor(mode)
        : mode == QIcon::Disabled  ? mixed(textColor(mode), accentColor(), kDisabledAccent)
                                   : accentColor();
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

constexpr int kEdge = 32;  ///< logical pixels
/// Directions are rounded to this, so that a moving camera does not make a cursor each time.
constexpr double kAngleStepDeg = 5.0;

/// In the order of HandleAction.
constexpr std::array<const char*, 6> kPictures {
    "", "cursorMoveAlong", "cursorMoveInPlane", "cursorTurn", "cursorScaleAlong", "cursorScaleAll"
};

}  // namespace

QIcon themeIcon(const QString& name)
{
    initialiseIcons();
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new ThemeIconEngine(file.readAll())) : QIcon();
}

QCursor cursorShape(const HandleCursor& cursor)
{
    if (cursor.action == HandleAction::None) {
        return QCursor(Qt::ArrowCursor);
    }
    QPixmap picture(kEdge, kEdge);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kEdge / 2.0, kEdge / 2.0);
    painter.rotate(-std::round(cursor.angleDeg / kAngleStepDeg) * kAngleStepDeg);
    themeIcon(QLatin1String(kPictures[static_cast<std::size_t>(cursor.action)]))
        .paint(&painter, -kEdge / 2, -kEdge / 2, kEdge, kEdge);
    painter.end();
    return QCursor(picture, kEdge / 2, kEdge / 2);
}

}  // namespace viewer
