// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <functional>
#include <string>

#include "PickView.h"
#include <embree3/rtcore.h>

namespace nbec::interaction::detail {

/// The process's Embree device, made on first use and kept to the end of the process; null if it
/// cannot be made.
RTCDevice embreeDevice();

/// Name and version of the library, as it is at run time.
std::string embreeVersion();

/// Told how far the building of one tree is, 0 .. 1; answers whether to go on. Called in any
/// thread, also in several at once.
using BuildMonitor = std::function<bool(double)>;

/// Commits a scene.
/// @param monitor  if there is one, nothing is logged, so that any thread may do it
/// @return false (without monitor with a line in the log) if Embree reports an error, such as lack
/// of memory, or the monitor has answered no
bool commitScene(RTCScene scene, const BuildMonitor& monitor = {});

/// Whether Embree takes a ray: it ends the program for one that is not finite or comes from beyond
/// 1e18.
inline bool isTraceable(const PickRay& ray)
{
    constexpr float kFarthest = 1e18F;
    bool isTraceable = ray.tFar >= 0.0F;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        isTraceable = isTraceable && std::abs(ray.origin[i]) <= kFarthest &&
            std::abs(ray.direction[i]) <= kFarthest;
    }
    return isTraceable;
}

/// A query for the nearest hit of a ray from its origin to tFar.
inline RTCRayHit toEmbree(const PickRay& ray)
{
    RTCRayHit query {};
    query.ray.org_x = ray.origin[0];
    query.ray.org_y = ray.origin[1];
    query.ray.org_z = ray.origin[2];
    query.ray.dir_x = ray.direction[0];
    query.ray.dir_y = ray.direction[1];
    query.ray.dir_z = ray.direction[2];
    query.ray.tfar = ray.tFar;
    query.ray.mask = ~0u;
    query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
    return query;
}

}  // namespace nbec::interaction::detail
