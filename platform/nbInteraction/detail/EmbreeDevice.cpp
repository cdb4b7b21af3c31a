// SPDX-License-Identifier: MIT
#include "EmbreeDevice.h"

#include <nbUtils/nbLog.h>

#include <string>

namespace nbec::interaction::detail {

RTCDevice embreeDevice()
{
    // Never released: trees may be given up as late as in destructors of static objects.
    static const RTCDevice device = [] {
        RTCDevice made = rtcNewDevice(nullptr);
        if (made == nullptr) {
            nbLog::warning("Picker: Embree has no device here (error " +
                           std::to_string(static_cast<int>(rtcGetDeviceError(nullptr))) +
                           "), triangles are tested one by one");
        }
        return made;
    }();
    return device;
}

bool commitScene(RTCScene scene)
{
    rtcGetDeviceError(embreeDevice());  // forgets an older error
    rtcCommitScene(scene);
    const RTCError error = rtcGetDeviceError(embreeDevice());
    if (error != RTC_ERROR_NONE) {
        nbLog::warning("Picker: Embree cannot build a tree (error " +
                       std::to_string(static_cast<int>(error)) + ")");
    }
    return error == RTC_ERROR_NONE;
}

}  // namespace nbec::interaction::detail
