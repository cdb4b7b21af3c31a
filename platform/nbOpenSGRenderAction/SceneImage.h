// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/Frame.h>
#include <nbUtils/nbFunctionRef.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace nbrender {

/// One of the things that a frame draws one after the other.
struct FrameStep
{
    enum class Kind
    {
        Item,
        Veil,  ///< the photograph over the scene
        FrontPlates
    };

    Kind kind = Kind::Item;
    osg::UInt32 item = 0;  ///< index into the item list
    bool transient = false;  ///< likely to change and cheap: never kept
    /// Differs when anything may that the frame has drawn up to this step, it included.
    osg::UInt64 stamp = 0;
};

using FrameSteps = std::vector<FrameStep>;

/// Decides what of a frame is taken from a kept copy of an earlier one, and when one is kept.
///
/// Kept is what the first steps of a frame draw, handles and plates before the scene left out: a
/// frame that begins with the same steps starts from the copy and draws the others, in the same
/// order on the same samples, and so is equal to a frame drawn in full to the last bit. Which steps
/// are "the scene" thus needs no knowledge of what they are: a frame that shares no beginning with
/// the one before, as while the camera moves, is drawn in full and not kept; the second one with
/// the same beginning keeps it; further ones use it as long as it is the beginning of theirs. What
/// is known to stay, as all but the object that is dragged, the first one keeps. Items
/// that are drawn after one of these, or after something else that keeps changing, are drawn each
/// time.
///
/// A copy is used where that costs less than to draw: it is not while an object that is drawn
/// early and covers much of the view is dragged.
class NB_PLATFORM_API SceneImage
{
public:
    /// What to do in a frame: take `reused` steps from the copy, or none and draw the background;
    /// draw up to `kept` and make a copy there, if that is more; draw the rest.
    struct Plan
    {
        std::size_t reused = 0;
        std::size_t kept = 0;
    };

    /// What a plan depends on beside the steps.
    struct Costs
    {
        std::size_t framePixels = 0;
        bool hasCopy = false;
        /// Where the buffers differ from the copy now.
        PixelBox difference;
        /// So many steps are going to be the same in the next frames.
        std::size_t settledSteps = 0;
        /// Where a step may draw.
        nbFunctionRef<PixelBox(const FrameStep&)> pixelsOf;
        nbFunctionRef<std::size_t(const FrameStep&)> trianglesOf;
    };

    /// Whether frames are kept at all; they are at the start.
    void setEnabled(bool on);

    Plan plan(const FrameSteps& steps, const Costs& costs);

    /// Tells that the copy of a plan was made, or that the driver refused it; then none of so many
    /// pixels is asked for again until forget().
    void kept(const FrameSteps& steps, const Plan& plan, std::size_t framePixels, bool success);

    /// To be called when there is no copy any more and nothing is known of the last frame.
    void forget();

private:
    std::size_t unchangedSteps(const FrameSteps& steps) const;
    std::size_t usableSteps(const FrameSteps& steps, const Costs& costs) const;
    static bool pays(const FrameSteps& steps, std::size_t count, const Costs& costs,
                     PixelBox touched);

    std::vector<osg::UInt64> lastStamps;
    std::size_t keptSteps = 0;
    osg::UInt64 keptStamp = 0;
    bool isEnabled = true;
    std::size_t refusedPixels = std::numeric_limits<std::size_t>::max();
};

}  // namespace nbrender
