// SPDX-License-Identifier: MIT
#pragma once

/// Marks what libnbManipulator.so exports; everything else stays hidden.
#if defined(__GNUC__)
#define NB_MANIPULATOR_API __attribute__((visibility("default")))
#else
#define NB_MANIPULATOR_API
#endif
