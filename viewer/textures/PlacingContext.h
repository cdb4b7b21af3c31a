// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/ToolInteractionContext.h>

#include <QString>

#include <string>

namespace viewer {

class TextureTool;

/// The context of clicks that place a picture, or its handles, which is no edit. The picture is
/// shown under the pointer before the click, and the wheel turns and sizes it.
class PlacingContext : public nbec::interaction::ToolInteractionContext
{
public:
    /// @param placingOwner  whose picture or handles are placed; has this, with a tool for pictures
    explicit PlacingContext(TextureTool& placingOwner)
        : owner(placingOwner)
    { }

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;
    void contextRemoved(nbec::interaction::InteractionManager* manager) override;

    /// Shows the picture under a pointer that rests, after the scene has changed.
    void showAgain() { show(pointer); }

    /// What clicks and the wheel do, for the status line.
    QString text() const;

private:
    enum class Pointer
    {
        Away,
        Hovering,
        Pressed
    };

    bool placeHandles(const nbec::interaction::InteractionManager* manager,
                      const std::string& event);
    void show(Pointer now);
    void turn(nbec::interaction::InteractionManager* manager, double steps, bool isFine);
    void setTurn(double newAngleDeg, double newSize);

    TextureTool& owner;
    Pointer pointer = Pointer::Away;
    double angleDeg = 0.0;  ///< counter-clockwise
    double size = 1.0;
    bool areHandlesPlaced = false;
};

}  // namespace viewer
