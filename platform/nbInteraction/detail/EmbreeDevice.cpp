// SPDX-License-Identifier: MIT
#include "EmbreeDevice.h"

#include <nbUtils/nbLog.h>

#include <string>

namespace nbec::interaction::detail {

namespace {

/// Embree's way of telling a monitor.
bool tellMonitor(void* monitor, double fraction)
{
    return (*static_cast<const BuildMonitor*>(monitor))(fraction);
}

}  // namespace

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

std::string embreeVersion()
{
    const auto part = [](RTCDeviceProperty which) {
        const RTCDevice device = embreeDevice();
        return device == nullptr ? std::string("?")
                                 : std::to_string(rtcGetDeviceProperty(device, which));
    };
    return "Embree " + part(RTC_DEVICE_PROPERTY_VERSION_MAJOR) + '.' +
        part(RTC_DEVICE_PROPERTY_VERSION_MINOR) + '.' + part(RTC_DEVICE_PROPERTY_VERSION_PATCH);
}

bool commitScene(RTCScene scene, const BuildMonitor& monitor)
{
    rtcGetDeviceError(embreeDevice());  // forgets an older error of this thread
    if (monitor) {
        rtcSetSceneProgressMonitorFunction(scene, &tellMonitor,
                                           const_cast<BuildMonitor*>(&monitor));
    }
    rtcCommitScene(scene);
    const RTCError error = rtcGetDeviceError(embreeDevice());
    if (monitor) {
        rtcSetSceneProgressMonitorFunction(scene, nullptr, nullptr);
    } else if (error != RTC_ERROR_NONE) {
        nbLog::warning("Picker: Embree cannot build a tree (error " +
                       std::to_string(static_cast<int>(error)) + ")");
    }
    return error == RTC_ERROR_NONE;
}

}  // namespace nbec::interaction::detail
