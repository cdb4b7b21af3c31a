// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

namespace nbec::notification {

/// How and where the texts of one kind are shown; kept as data, painted by the view.
struct NB_PLATFORM_API NotifierSettings
{
    static constexpr float kUsualBackShade = 0.05F;

    /// Height of the text relative to the view's usual text.
    float textSize = 1.0F;
    osg::Color3f lineColor { 0.5F, 0.5F, 0.5F };  ///< frame around a text
    osg::Color3f backColor { kUsualBackShade, kUsualBackShade,
                             kUsualBackShade };  ///< behind a text
    osg::Color3f textColor { 1.0F, 1.0F, 1.0F };
    /// Place of the first text's upper left corner within the area: logical pixels, x to the right,
    /// y downwards.
    osg::Vec2f textPosition { 0.0F, 0.0F };
    /// Upper left and lower right corner of the part of the view that texts may take: logical
    /// pixels from the view's upper left corner, negative ones from its right or lower edge (-1 is
    /// the last pixel).
    osg::Vec2f textAreaFrom { 0.0F, 0.0F };
    osg::Vec2f textAreaTo { -1.0F, -1.0F };

    bool operator==(const NotifierSettings& other) const;

    bool operator!=(const NotifierSettings& other) const { return !(*this == other); }
};

/// Shows texts in some way; registered under a name with the NotificationManager.
class NB_PLATFORM_API Notifier
{
public:
    Notifier() = default;
    virtual ~Notifier();

    /// Whether its texts are shown now.
    virtual bool isVisible() const { return true; }

    // == Settings; setters with values that are not finite change nothing

    const NotifierSettings& getSettings() const { return settings; }

    /// @param size  > 0
    void setTextSize(float size);
    void setLineColor(const osg::Color3f& color);
    void setBackColor(const osg::Color3f& color);
    void setTextColor(const osg::Color3f& color);
    void setTextPosition(const osg::Vec2f& position);
    void setTextArea(const osg::Vec2f& from, const osg::Vec2f& to);

    Notifier(const Notifier&) = delete;
    Notifier& operator=(const Notifier&) = delete;

private:
    NotifierSettings settings;
};

}  // namespace nbec::notification
