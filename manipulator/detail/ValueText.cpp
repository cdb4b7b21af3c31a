// SPDX-License-Identifier: MIT
#include "manipulator/detail/ValueText.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbNotification/CameraNotifier.h>
#include <nbNotification/NotificationManager.h>

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace nbec::manipulator::detail {

using notification::CameraNotifier;
using notification::NotificationManager;

namespace {

constexpr float kLineGrey = 0.5F;
constexpr float kBackGrey = 0.05F;
constexpr float kAreaEdge = 30.0F;
constexpr float kTextHeight = 26.0F;
constexpr int kDecimals = 2;
constexpr double kHundredths = 100.0;
constexpr std::uint64_t kBase = 10;
/// Hundredths of values below are exact in a double, with a half added too.
constexpr double kQuickLimit = 1e13;
/// Room for a value below that limit, without its sign.
constexpr std::size_t kLongestQuick = 24;
/// Room for a value: the greatest float has 39 digits before the point.
constexpr std::size_t kLongestValue = 48;

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

/// Writes a value of any float with two decimals, halves rounded away from zero. What rounds to
/// zero has no sign. @return end of what was written
char* writeValue(char* to, double value)
{
    const double magnitude = std::abs(value);
    if (!(magnitude < kQuickLimit)) {
        const QByteArray digits = QByteArray::number(value, 'f', kDecimals);
        return std::copy(digits.begin(), digits.end(), to);
    }
    auto hundredths = static_cast<std::uint64_t>(std::floor(magnitude * kHundredths + 0.5));
    if (value < 0.0 && hundredths > 0) {
        *to++ = '-';
    }
    char reversed[kLongestQuick];
    int count = 0;
    while (hundredths > 0 || count <= kDecimals) {
        if (count == kDecimals) {
            reversed[count++] = '.';
        }
        reversed[count++] = static_cast<char>('0' + hundredths % kBase);
        hundredths /= kBase;
    }
    return std::reverse_copy(reversed, reversed + count, to);
}

}  // namespace

ValueText::ValueText(const char* notifier)
    : notifierName(notifier)
{ }

void ValueText::show(const QString& text)
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
    notifier->setTextPosition(osg::Vec2f(0.0F, kTextHeight / viewAspect()));
    notifier->setTextArea(osg::Vec2f(kAreaEdge, kAreaEdge), osg::Vec2f(-1.0F, -1.0F));
    if (text.isEmpty()) {
        manager->removeTextNotification(shown);
        shown = nullptr;
    } else if (shown == nullptr) {
        shown = manager->createTextNotification(notifierName, text);
    } else {
        manager->setText(shown, text);
    }
}

QString describeValues(const char* title, const osg::Vec3f& values)
{
    return describeValues(title, { values.x(), values.y(), values.z() });
}

QString describeValues(const char* title, std::initializer_list<float> values)
{
    QString text = QCoreApplication::translate("nbForegroundTextContext", title);
    bool isFirst = true;
    char digits[kLongestValue];
    for (const float value : values) {
        if (!isFirst) {
            text += QLatin1String(", ");
        }
        isFirst = false;
        const char* const end = writeValue(digits, static_cast<double>(value));
        text += QLatin1String(digits, static_cast<int>(end - digits));
    }
    text += QLatin1Char(')');
    return text;
}

}  // namespace nbec::manipulator::detail
