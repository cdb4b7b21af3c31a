// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <functional>
#include <vector>

namespace nbec::interaction {

/// Builds the search trees of new geometry in a thread of the host's, so that the window goes on
/// meanwhile: what Picker::buildTrees does at once, in three steps.
///
/// The triangles are copied first, so that the scene may change or go while the trees are built;
/// the tree of a geometry that has changed by then is left out, and built by the pick that needs
/// it. Nothing throws.
class NB_PLATFORM_API PickTreeBuilder
{
public:
    /// Told how far building is, 0 .. 1, never falling; answers whether to go on. Called in the
    /// thread of build() or others, one call at a time.
    using Progress = std::function<bool(double)>;

    /// Copies the triangles of all geometry below some nodes whose tree is not there yet.
    /// User-interface thread.
    /// @param roots  need not be in the scene; null: nothing
    explicit PickTreeBuilder(const std::vector<osg::NodePtr>& roots);
    PickTreeBuilder(const PickTreeBuilder&) = delete;
    PickTreeBuilder& operator=(const PickTreeBuilder&) = delete;
    /// Any thread.
    ~PickTreeBuilder();

    /// Builds the trees. Any thread, once.
    /// @param progress  may be empty
    /// @return false if progress has answered no, which ends building within milliseconds; there
    /// are no trees then
    bool build(const Progress& progress);

    /// Hands the trees that were built to all pickers. User-interface thread, after build().
    void adopt();

private:
    struct Job;
    std::vector<Job> jobs;
};

}  // namespace nbec::interaction
