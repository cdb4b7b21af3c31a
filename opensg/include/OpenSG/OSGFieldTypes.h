// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The names of all field types whose values are no pointers. Every class brings them along, so
/// that what its getSFX and getMFX answer can be named.

#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFMathTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
