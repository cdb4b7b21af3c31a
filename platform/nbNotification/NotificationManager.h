// SPDX-License-Identifier: MIT
#pragma once

#include <nbNotification/Notifier.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>

#include <QtCore/QRectF>
#include <QtCore/QString>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nbec::notification {

/// A text on the screen, until it is removed.
class TextNotification
{
    friend class NotificationManager;

    std::string notifierName;  ///< of the notifier that shows it
    QString text;
};

/// One text with all that a painter of the view needs.
struct VisibleText
{
    QString text;
    NotifierSettings settings;
    /// Logical pixels of the view, y downwards. The text begins at the upper left corner and is cut
    /// off at the others; further texts of the same notifier stand below it.
    QRectF area;
};

/// Knows the notifiers by name and the texts that are shown now. No drawing happens here: a view
/// asks for the visible texts and is told when they change.
/// Belongs to the user-interface thread. Never throws; a throwing listener is caught and logged.
class NB_PLATFORM_API NotificationManager
{
public:
    /// The manager of the process.
    static NotificationManager* getInstance();

    // == Notifiers

    /// Registers a notifier, in place of one that has the name already. Null takes the name away.
    void registerNotifier(const std::string& name, std::shared_ptr<Notifier> notifier);

    /// The notifier of a name, or null.
    std::shared_ptr<Notifier> getNotifier(const std::string& name) const;

    // == Texts

    /// Shows a text with the notifier of the name; one that is registered later shows it from then
    /// on.
    /// @return handle owned by the manager, valid until it is removed
    TextNotification* createTextNotification(const std::string& notifierName, const QString& text);

    /// Replaces a text; an equal one changes nothing. Handles unknown or null are ignored, here and
    /// below.
    void setText(TextNotification* notification, const QString& text);

    void removeTextNotification(TextNotification* notification);

    /// How many texts there are, visible or not.
    std::size_t getTextCount() const { return texts.size(); }

    // == For the view

    /// The texts that can be seen, oldest first: not empty, with a registered notifier.
    /// @param width, height  of the view in logical pixels; where an area is empty its texts are
    /// left out
    std::vector<VisibleText> getVisibleTexts(int width, int height) const;

    /// Counts every change of texts and of the register of notifiers; settings of a notifier are
    /// read when the view paints.
    osg::UInt64 getChangeCount() const { return changeCount; }

    /// Called after each change, so that the view can redraw. An empty function for none.
    void setChangeListener(std::function<void()> listener) { changeListener = std::move(listener); }

    /// Forgets texts, notifiers and listener.
    void clear();

    NotificationManager(const NotificationManager&) = delete;
    NotificationManager& operator=(const NotificationManager&) = delete;

private:
    NotificationManager() = default;

    bool isKnown(const TextNotification* notification) const;
    void noteChange();

    std::map<std::string, std::shared_ptr<Notifier>> notifiers;
    std::vector<std::unique_ptr<TextNotification>> texts;
    std::function<void()> changeListener;
    osg::UInt64 changeCount = 0;
};

}  // namespace nbec::notification
