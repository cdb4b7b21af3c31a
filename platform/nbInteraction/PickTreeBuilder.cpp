// SPDX-License-Identifier: MIT
#include "PickTreeBuilder.h"

#include <nbOpenSGExt/nbContainerId.h>

#include <OpenSG/OSGGeometry.h>

#include <algorithm>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

#include "detail/EmbreeDevice.h"
#include "detail/GeometryExtraction.h"
#include "detail/PickTree.h"
#include "detail/PickTreeCache.h"
#include "detail/TreeWalk.h"
#include <ChangeCount.h>

namespace nbec::interaction {

/// A geometry's way from its triangles to its tree.
struct PickTreeBuilder::Job
{
    osg::UInt32 geometryId = 0;
    osg::UInt32 changeCount = 0;
    detail::GeometrySoup soup;
    std::shared_ptr<detail::PickTree> tree;  ///< null until it is built

    double triangleCount() const
    {
        const std::size_t count = soup.triangles.size() / 3;
        return static_cast<double>(count);
    }
};

namespace {

/// Makes one rising fraction of those that several trees and threads report.
class Reporter
{
public:
    Reporter(const PickTreeBuilder::Progress& target, double triangleCount)
        : report(target)
        , total(std::max(triangleCount, 1.0))
    { }

    /// @param done   triangles of finished trees
    /// @param share  triangles of the tree that is being built
    bool tell(double done, double share, double fraction)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (goesOn && report) {
            highest = std::max(highest, std::min((done + share * fraction) / total, 1.0));
            goesOn = report(highest);
        }
        return goesOn;
    }

private:
    const PickTreeBuilder::Progress& report;
    double total;
    std::mutex mutex;
    double highest = 0.0;
    bool goesOn = true;
};

}  // namespace

PickTreeBuilder::PickTreeBuilder(const std::vector<osg::NodePtr>& roots)
{
    // A device that cannot be made is told in the log, which belongs to this thread.
    detail::embreeDevice();
    std::set<osg::UInt32> known;
    const auto collect = [&](const osg::NodePtr& node) {
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry != osg::NullFC && known.insert(geometry.getFieldContainerId()).second &&
            !detail::PickTreeCache::the().isCurrent(geometry)) {
            Job job;
            job.geometryId = geometry.getFieldContainerId();
            job.changeCount = osg::getChangeCount(geometry);
            job.soup = detail::extractGeometry(geometry);
            jobs.push_back(std::move(job));
        }
    };
    for (const osg::NodePtr& root : roots) {
        detail::forEachBelow(root, collect);
    }
}

PickTreeBuilder::~PickTreeBuilder() = default;

bool PickTreeBuilder::build(const Progress& progress)
{
    double total = 0.0;
    for (const Job& job : jobs) {
        total += job.triangleCount();
    }
    Reporter reporter(progress, total);
    double done = 0.0;
    for (Job& job : jobs) {
        const double share = job.triangleCount();
        const auto monitor = [&](double fraction) { return reporter.tell(done, share, fraction); };
        const auto tree = std::make_shared<detail::PickTree>();
        const bool isBuilt = tree->assign(std::move(job.soup), monitor);
        done += share;
        if (!reporter.tell(done, 0.0, 0.0)) {
            jobs.clear();
            return false;
        }
        // Without tree the first pick tries again, and says what is wrong.
        if (isBuilt) {
            job.tree = tree;
        }
    }
    return true;
}

void PickTreeBuilder::adopt()
{
    for (Job& job : jobs) {
        const auto geometry = resolveContainer<osg::GeometryPtr>(job.geometryId);
        if (job.tree != nullptr && geometry != osg::NullFC &&
            osg::getChangeCount(geometry) == job.changeCount) {
            detail::PickTreeCache::the().adopt(job.geometryId, std::move(job.tree),
                                               job.changeCount);
        }
    }
    jobs.clear();
}

}  // namespace nbec::interaction
