// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMField.h>

namespace osg {
typedef MField<bool> MFBool;
typedef MField<Int32> MFInt32;
typedef MField<Int16> MFInt16;
typedef MField<UInt8> MFUInt8;
typedef MField<UInt16> MFUInt16;
typedef MField<UInt32> MFUInt32;
typedef MField<UInt64> MFUInt64;
typedef MField<Real32> MFReal32;
typedef MField<Real64> MFReal64;
}  // namespace osg
