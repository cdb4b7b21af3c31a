// SPDX-License-Identifier: MIT
// The window as a whole: that everything in it can be found, read, reached by
// keys and seen in every theme.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/AxesCorner.h"
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <set>

namespace viewer {
namespace {

class WindowTest : public ShownWindow
{
protected:
    ~WindowTest() override
    {
        applyTheme(Theme::System);
        applyLanguage(Language::English);
    }
};

/// Parts that Qt makes inside its widgets have names of Qt, or none.
bool isOwnControl(const QWidget* widget)
{
    const auto isOneOf = [widget](std::initializer_list<const char*> kinds) {
        return std::any_of(kinds.begin(), kinds.end(),
                           [widget](const char* kind) { return widget->inherits(kind); });
    };
    return !widget->objectName().startsWith(QLatin1String("qt_")) &&
        !widget->parent()->inherits("QAbstractSpinBox") &&
        !widget->parent()->inherits("QComboBox") &&
        !isOneOf({ "QDockWidgetTitleButton", "QToolBarExtension", "QScrollBar", "QHeaderView",
                   "QComboBoxListView" }) &&
        isOneOf({ "QAbstractButton", "QAbstractSpinBox", "QComboBox", "QLineEdit",
                  "QAbstractSlider", "QAbstractItemView", "QProgressBar", "viewer::ViewWidget" });
}

TEST_F(WindowTest, EveryControlHasANameForThoseWhoDoNotSeeItAndIsReachedByTab)
{
    int controls = 0;
    const QList<QDockWidget*> docks = window.findChildren<QDockWidget*>();
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!isOwnControl(widget)) {
            continue;
        }
        ++controls;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).trimmed().isEmpty())
            << widget->metaObject()->className() << " \"" << widget->objectName().toStdString()
            << "\" in \"" << widget->parent()->objectName().toStdString() << '"';
        const bool isInDock = std::any_of(docks.begin(), docks.end(), [widget](QDockWidget* dock) {
            return dock->widget()->isAncestorOf(widget);
        });
        EXPECT_TRUE(!isInDock || (widget->focusPolicy() & Qt::TabFocus) != 0)
            << widget->objectName().toStdString() << " is not reached by Tab";
    }
    EXPECT_GT(controls, 100);
}

TEST_F(WindowTest, EveryActionHasATextATipAndAShortcutOfItsOwn)
{
    std::set<QString> shortcuts;
    int actions = 0;
    for (QAction* each : window.findChildren<QAction*>()) {
        if (each->isSeparator() || each->objectName().isEmpty() ||
            each->objectName().startsWith(QLatin1Char('_'))) {
            continue;
        }
        ++actions;
        const std::string name = each->objectName().toStdString();
        EXPECT_FALSE(each->text().isEmpty()) << name;
        EXPECT_FALSE(each->toolTip().isEmpty()) << name;
        EXPECT_FALSE(each->toolTip().contains(QLatin1Char('&'))) << name;
        for (const QKeySequence& keys : each->shortcuts()) {
            const QString text = keys.toString(QKeySequence::NativeText);
            EXPECT_TRUE(shortcuts.insert(text).second) << name << ": " << text.toStdString();
            EXPECT_TRUE(each->toolTip().contains(text)) << name;
        }
    }
    EXPECT_GT(actions, 40);
}

/// How far the drawn pixels of an icon are from a colour, 0 .. 255 of
/// lightness, on average.
double contrastOf(const QIcon& icon, const QColor& ground, int size)
{
    const QImage image = icon.pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
    double sum = 0.0;
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 200) {
                sum += std::abs(qGray(color.rgb()) - qGray(ground.rgb()));
                ++drawn;
            }
        }
    }
    return drawn < size ? 0.0 : sum / drawn;
}

TEST_F(WindowTest, EveryToolHasAnIconThatIsSeenInEveryTheme)
{
    constexpr double kLeastContrast = 70.0;
    constexpr int kSize = 40;
    const QList<QToolBar*> bars = window.findChildren<QToolBar*>();
    for (const Theme theme : { Theme::Light, Theme::Dark }) {
        applyTheme(theme);
        EXPECT_EQ(isDarkPalette(), theme == Theme::Dark);
        const QColor ground = QApplication::palette().color(QPalette::Window);
        int icons = 0;
        for (const QToolBar* bar : bars) {
            for (const QAction* each : bar->actions()) {
                if (!each->isSeparator()) {
                    ++icons;
                    EXPECT_GT(contrastOf(each->icon(), ground, kSize), kLeastContrast)
                        << themeName(theme).toStdString() << ' '
                        << each->objectName().toStdString();
                }
            }
        }
        EXPECT_GT(icons, 35);
    }
    applyTheme(Theme::System);
}

TEST_F(WindowTest, FullScreenShowsTheViewAloneAndEscapeLeadsBack)
{
    auto* dock = find<QDockWidget>("sceneDock");
    dock->show();
    QToolBar* bar = find<QToolBar>("tools");
    ASSERT_TRUE(bar->isVisible());

    action("fullScreen")->trigger();
    EXPECT_TRUE(window.isWhole());
    EXPECT_TRUE((window.windowState() & Qt::WindowFullScreen) != 0);
    for (const QWidget* other :
         std::initializer_list<QWidget*> { dock, bar, window.menuBar(), window.statusBar() }) {
        EXPECT_FALSE(other->isVisible());
    }

    pressKey(window.view(), Qt::Key_Escape);
    EXPECT_FALSE(window.isWhole());
    EXPECT_FALSE((window.windowState() & Qt::WindowFullScreen) != 0);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(window.menuBar()->isVisible());
    EXPECT_FALSE(action("fullScreen")->isChecked());
}

TEST_F(WindowTest, AClickOnAnAxisInTheCornerLooksAlongItWhicheverIsUp)
{
    AxesCorner corner(&window.view(), stage());
    QList<nbCameraNavigation::StandardView> asked;
    QObject::connect(&corner, &AxesCorner::viewAsked, [&](auto side) { asked.append(side); });
    const auto click = [&corner](int axis) {
        corner.refresh();
        QMouseEvent press(QEvent::MouseButtonPress, corner.endOf(axis), QPointF(), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&corner, &press);
    };
    using View = nbCameraNavigation::StandardView;
    click(0);
    click(1);
    click(2);
    stage().setZUp(true);
    click(2);
    EXPECT_EQ(asked, (QList<View> { View::Right, View::Top, View::Front, View::Top }));
}

TEST_F(WindowTest, MessagesAreKeptWithTheirLevel)
{
    LogPanel& log = window.panels().log();
    log.clear();
    nbLog::info("a note");
    emit window.problem(QStringLiteral("a problem"));
    EXPECT_TRUE(log.toPlainText().contains("Note\ta note\n"));
    EXPECT_TRUE(log.toPlainText().endsWith("Warning\ta problem"));
}

TEST_F(WindowTest, KeysGoFromPanelToPanelAndBackToTheView)
{
    for (const char* name : { "sceneDock", "objectDock" }) {
        find<QDockWidget>(name)->show();
    }
    window.activateWindow();
    window.view().setFocus();
    waitForQuiet();
    QList<QWidget*> visited;

    for (int i = 0; i < 3; ++i) {
        window.panels().focusNext(&window.view());
        visited.append(window.focusWidget());
    }

    const auto isIn = [this](const QWidget* widget, const char* dock) {
        return find<QDockWidget>(dock)->isAncestorOf(widget);
    };
    EXPECT_TRUE(isIn(visited[0], "sceneDock"));
    EXPECT_TRUE(isIn(visited[1], "objectDock"));
    EXPECT_EQ(visited[2], &window.view());
}

TEST_F(WindowTest, ASmallWindowStaysSmallWithEveryPanelShown)
{
    for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
        dock->show();
        dock->raise();
        waitForQuiet();
        EXPECT_LE(window.minimumSizeHint().width(), 760) << dock->objectName().toStdString();
        EXPECT_LE(window.minimumSizeHint().height(), 560) << dock->objectName().toStdString();
        dock->hide();
    }
}

}  // namespace
}  // namespace viewer
