// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/PictureFile.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Line2D.h>
#include <nbOpenSGUberViewport/nbPhotographFit.h>

#include <algorithm>

namespace viewer {

/// The photograph behind the scene of a view: its picture, how it lies in the view and how much it
/// covers the models. None of it makes a step of undo.
class MatchPhotograph
{
public:
    /// @param shownIn  outlives this
    explicit MatchPhotograph(nbOSGWidget& shownIn)
        : view(shownIn)
    { }

    /// Shows a picture file; "" shows none. @return false with one line in `error`, nothing changed
    bool set(const QString& file, QString& error);
    /// Shows an image; null shows none.
    void set(const osg::ImagePtr& image);

    /// Null for none.
    osg::ImagePtr image() const { return view.getUberViewport()->getPhotograph(); }

    /// Its name without folder, "" for none.
    QString name() const { return pictureName(image()); }

    /// Where it lies in the view; without one an empty place.
    nbPhotographFit place() const;

    /// Whether it is as wide as the view, rather than as high.
    bool fitsWidth() const { return view.getUberCamera()->getHorizontalSizing(); }

    void setFitsWidth(bool on);

    /// Lets it cover the models. @param opacity  0 .. 1
    void cover(double opacity);

    /// Device pixels of a unit of line coordinates: the side of the view that the photograph has.
    double unitPx() const { return std::max(fitsWidth() ? view.getWidth() : view.getHeight(), 1); }

    /// The line laid onto the strongest edge within a few pixels, line coordinates.
    osg::Line2D onEdge(const osg::Line2D& line, bool movesFirst, bool movesSecond) const;

private:
    nbOSGWidget& view;
};

}  // namespace viewer
