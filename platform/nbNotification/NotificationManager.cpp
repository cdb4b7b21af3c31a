// SPDX-License-Identifier: MIT
#include "NotificationManager.h"

#include <nbUtils/nbGuard.h>

#include <algorithm>

namespace nbec::notification {

namespace {

/// One coordinate of a text area as a distance from the view's left or upper edge.
double fromStart(float value, int length)
{
    return value < 0.0F ? static_cast<double>(value) + length + 1.0 : static_cast<double>(value);
}

QRectF areaOf(const NotifierSettings& settings, int width, int height)
{
    const double left = fromStart(settings.textAreaFrom[0], width);
    const double top = fromStart(settings.textAreaFrom[1], height);
    const double right = fromStart(settings.textAreaTo[0], width);
    const double bottom = fromStart(settings.textAreaTo[1], height);
    const QPointF start(left + static_cast<double>(settings.textPosition[0]),
                        top + static_cast<double>(settings.textPosition[1]));
    const QRectF view(0.0, 0.0, width, height);
    return QRectF(start, QPointF(right, bottom)).intersected(view);
}

}  // namespace

NotificationManager* NotificationManager::getInstance()
{
    static NotificationManager manager;
    return &manager;
}

void NotificationManager::registerNotifier(const std::string& name,
                                           std::shared_ptr<Notifier> notifier)
{
    if (notifier == nullptr) {
        notifiers.erase(name);
    } else {
        notifiers[name] = std::move(notifier);
    }
    noteChange();
}

std::shared_ptr<Notifier> NotificationManager::getNotifier(const std::string& name) const
{
    const auto found = notifiers.find(name);
    return found == notifiers.end() ? nullptr : found->second;
}

TextNotification* NotificationManager::createTextNotification(const std::string& notifierName,
                                                              const QString& text)
{
    texts.push_back(std::make_unique<TextNotification>());
    TextNotification* const created = texts.back().get();
    created->notifierName = notifierName;
    created->text = text;
    noteChange();
    return created;
}

void NotificationManager::setText(TextNotification* notification, const QString& text)
{
    if (!isKnown(notification) || notification->text == text) {
        return;
    }
    notification->text = text;
    noteChange();
}

void NotificationManager::removeTextNotification(TextNotification* notification)
{
    const auto found = std::find_if(texts.begin(), texts.end(), [notification](const auto& text) {
        return text.get() == notification;
    });
    if (found != texts.end()) {
        texts.erase(found);
        noteChange();
    }
}

std::vector<VisibleText> NotificationManager::getVisibleTexts(int width, int height) const
{
    std::vector<VisibleText> visible;
    for (const auto& text : texts) {
        const std::shared_ptr<Notifier> notifier = getNotifier(text->notifierName);
        if (text->text.isEmpty() || notifier == nullptr || !notifier->isVisible()) {
            continue;
        }
        const QRectF area = areaOf(notifier->getSettings(), width, height);
        if (!area.isEmpty()) {
            visible.push_back({ text->text, notifier->getSettings(), area });
        }
    }
    return visible;
}

void NotificationManager::clear()
{
    changeListener = nullptr;
    texts.clear();
    notifiers.clear();
    ++changeCount;
}

bool NotificationManager::isKnown(const TextNotification* notification) const
{
    return std::any_of(texts.begin(), texts.end(),
                       [notification](const auto& text) { return text.get() == notification; });
}

void NotificationManager::noteChange()
{
    ++changeCount;
    if (!changeListener) {
        return;
    }
    // A copy: the listener may replace itself.
    const std::function<void()> listener = changeListener;
    nbGuarded("NotificationManager: the change listener", listener);
}

}  // namespace nbec::notification
