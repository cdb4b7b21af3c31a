// SPDX-License-Identifier: MIT
#include "manipulator/course/ValueText.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbNotification/CameraNotifier.h>
#include <nbNotification/NotificationManager.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <algorithm>
#include <memory>

namespace nbec::manipulator {

using notification::CameraNotifier;
using notification::NotificationManager;

namespace {

constexpr float kLineGrey = 0.5F;
constexpr float kBackGrey = 0.05F;
constexpr float kAreaEdge = 30.0F;
constexpr float kTextHeight = 26.0F;
constexpr int kDecimals = 2;

osg::Color3f grey(float value)
{
    return osg::Color3f(value, value, value);
}

std::shared_ptr<CameraNotifier> makeNotifier()
{
    auto notifier = std::make_shared<CameraNotifier>(nbScenegraph::getInternalRoot());
    notifier->setTextSize(1.0F);
    notifier->setLineColor(grey(kLineGrey));
    notifier->setBackColor(grey(kBackGrey));
    notifier->setTextColor(grey(1.0F));
    return notifier;
}

float viewAspect()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr || widget->getWidth() <= 0 || widget->getHeight() <= 0) {
        return 1.0F;
    }
    return std::min(
        static_cast<float>(widget->getWidth()) / static_cast<float>(widget->getHeight()), 1.0F);
}

}  // namespace

ValueText::ValueText(const char* notifier)
    : notifierName(notifier)
{ }

void ValueText::show(const QString& text)
{
    put(text, osg::Vec2f(0.0F, kTextHeight / viewAspect()), kAreaEdge);
}

void ValueText::showAt(const QString& text, const osg::Vec2f& placePx)
{
    put(text, placePx, 0.0F);
}

/// @param edge  of the view, which texts keep free at its upper and left side
void ValueText::put(const QString& text, const osg::Vec2f& place, float edge)
{
    NotificationManager* const manager = NotificationManager::getInstance();
    std::shared_ptr<notification::Notifier> notifier = manager->getNotifier(notifierName);
    if (notifier == nullptr) {
        // Never made, or the host has cleared the manager and with it our text.
        shown = nullptr;
        if (text.isEmpty()) {
            return;
        }
        notifier = makeNotifier();
        manager->registerNotifier(notifierName, notifier);
    }
    notifier->setTextPosition(place);
    notifier->setTextArea(osg::Vec2f(edge, edge), osg::Vec2f(-1.0F, -1.0F));
    if (text.isEmpty()) {
        manager->removeTextNotification(shown);
        shown = nullptr;
    } else if (shown == nullptr) {
        shown = manager->createTextNotification(notifierName, text);
    } else {
        manager->setText(shown, text);
    }
}

QString describeNumber(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    return text.startsWith(QLatin1Char('-')) && text.toDouble() == 0.0 ? text.mid(1) : text;
}

QString describeValues(const char* title, const osg::Vec3f& values)
{
    return describeValues(title, { values.x(), values.y(), values.z() });
}

QString describeValues(const char* title, std::initializer_list<float> values)
{
    QString text = QCoreApplication::translate("nbForegroundTextContext", title);
    bool isFirst = true;
    for (const float value : values) {
        if (!isFirst) {
            text += QLatin1String(", ");
        }
        isFirst = false;
        text += describeNumber(static_cast<double>(value), kDecimals);
    }
    text += QLatin1Char(')');
    return text;
}

}  // namespace nbec::manipulator
