// SPDX-License-Identifier: MIT
#pragma once

/// Marks what libnbplatform.so exports.
#if defined(__GNUC__)
#define NB_PLATFORM_API __attribute__((visibility("default")))
#else
#define NB_PLATFORM_API
#endif
