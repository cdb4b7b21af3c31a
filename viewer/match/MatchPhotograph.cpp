// SPDX-License-Identifier: MIT
#include "viewer/match/MatchPhotograph.h"

#include <nbOpenSGUberViewport/nbEdgeSnap.h>
#include <nbOpenSGUtils/nbEdit.h>

namespace viewer {

bool MatchPhotograph::set(const QString& file, QString& error)
{
    const osg::RefPtr<osg::ImagePtr> picture =
        file.isEmpty() ? osg::RefPtr<osg::ImagePtr>() : readPicture(file, error);
    const bool isShown = file.isEmpty() || picture != osg::NullFC;
    if (isShown) {
        set(picture.get());
    }
    return isShown;
}

void MatchPhotograph::set(const osg::ImagePtr& image)
{
    const osg::UberViewportPtr viewport = view.getUberViewport();
    {
        const nbEdit edit(viewport, osg::UberViewport::PhotographFieldMask);
        viewport->setPhotograph(image);
    }
    view.update();
}

nbPhotographFit MatchPhotograph::place() const
{
    return image() == osg::NullFC
        ? nbPhotographFit()
        : nbPhotographFit::of(image()->getWidth(), image()->getHeight(), view.getWidth(),
                              view.getHeight(), !fitsWidth());
}

void MatchPhotograph::setFitsWidth(bool on)
{
    const osg::UberCameraPtr camera = view.getUberCamera();
    const nbEdit edit(camera, osg::UberCamera::HorizontalSizingFieldMask);
    camera->setHorizontalSizing(on);
}

void MatchPhotograph::cover(double opacity)
{
    const osg::UberViewportPtr viewport = view.getUberViewport();
    const auto wanted = static_cast<float>(opacity);
    if (viewport->getPhotographVeil() != wanted) {
        const nbEdit edit(viewport, osg::UberViewport::PhotographVeilFieldMask);
        viewport->setPhotographVeil(wanted);
        view.update();
    }
}

osg::Line2D MatchPhotograph::onEdge(const osg::Line2D& line, bool movesFirst,
                                    bool movesSecond) const
{
    const auto unit = static_cast<float>(unitPx());
    const nbViewLine laid =
        nbEdgeSnap::onto(image(), place(), { line.getFirst() * unit, line.getSecond() * unit },
                         movesFirst, movesSecond);
    return { laid.first * (1.0F / unit), laid.second * (1.0F / unit) };
}

}  // namespace viewer
