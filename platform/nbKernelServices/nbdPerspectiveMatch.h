// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbCameraTypes.h>
#include <nbKernelServices/nbdObject.h>

#include <QtCore/QLineF>

/// Refers to the perspective match of a camera: six lines, two for each axis of the world, laid
/// along edges of a photograph that run in the direction of that axis.
///
/// Line coordinates have their origin in the lower left corner of the view, y up, in units of the
/// view's reference size (see nbCameraUtils::getVerticalSizing); a view of 1600 x 1000 pixels that
/// keeps its height reaches from (0, 0) to (1.6, 1). The unit stays when the view is resized; see
/// also setAnchoredToCentre.
///
/// The match lives and dies with its camera. Setters announce a change by the object service and
/// record it, with the camera's placement, in the open undo step; a setter moves no camera.
class NB_PLATFORM_API nbdPerspectiveMatch : public nbdObject
{
public:
    /// The lines, in the order in which they are stored.
    enum Line : int
    {
        XLine1,
        XLine2,
        YLine1,
        YLine2,
        ZLine1,
        ZLine2
    };

    static constexpr int kLineCount = 6;

    /// Range and start value of the magnify factor.
    static constexpr float kSmallestMagnifyFactor = 1.0F;
    static constexpr float kLargestMagnifyFactor = 32.0F;
    static constexpr float kDefaultMagnifyFactor = 4.0F;

    /// A null match.
    nbdPerspectiveMatch() = default;

    /// The match that an object is; null for all other objects.
    explicit nbdPerspectiveMatch(const nbdObject& object);

    // == Lines. Properties "xLine1" to "zLine2". A null match has lines of length 0 at the origin.
    // Every number is kept as it is given; one that is the stored number in single precision, in
    // which manipulators work, leaves the stored one its further digits. Whether lines are usable
    // is asked when they are solved.

    QLineF getXLine1() const { return getLine(XLine1); }

    QLineF getXLine2() const { return getLine(XLine2); }

    QLineF getYLine1() const { return getLine(YLine1); }

    QLineF getYLine2() const { return getLine(YLine2); }

    QLineF getZLine1() const { return getLine(ZLine1); }

    QLineF getZLine2() const { return getLine(ZLine2); }

    void setXLine1(const QLineF& line) const { setLine(XLine1, line); }

    void setXLine2(const QLineF& line) const { setLine(XLine2, line); }

    void setYLine1(const QLineF& line) const { setLine(YLine1, line); }

    void setYLine2(const QLineF& line) const { setLine(YLine2, line); }

    void setZLine1(const QLineF& line) const { setLine(ZLine1, line); }

    void setZLine2(const QLineF& line) const { setLine(ZLine2, line); }

    QLineF getLine(Line which) const;
    void setLine(Line which, const QLineF& line) const;

    // == Settings

    /// Which axes' lines are used; XYZLines for a null match. Property "vanishingLinesType".
    nbCameraTypes::VanishingLinesType getVanishingLinesType() const;
    /// Numbers that are no type are ignored.
    void setVanishingLinesType(nbCameraTypes::VanishingLinesType type) const;

    /// How many times a magnifier enlarges while an end of a line is held. Property
    /// "magnifyFactor".
    float getMagnifyFactor() const;
    /// Limited to the range above; not finite is ignored.
    void setMagnifyFactor(float factor) const;

    /// Sets whether the lines keep their place relative to the middle of the view, where the
    /// photograph and the view axis are, when the view gets another shape; at the start they keep
    /// it relative to the lower left corner. Property "anchoredToCentre".
    void setAnchoredToCentre(bool anchored) const;

private:
    friend class nbdCameraNode;

    explicit nbdPerspectiveMatch(osg::UInt32 cameraNodeId)
        : nbdObject(Kind::PerspectiveMatch, cameraNodeId)
    { }
};
