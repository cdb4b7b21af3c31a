// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>

namespace nbrender {

/// Transposed inverse of the 3x3: it keeps normals upright under uneven scales. A singular matrix
/// gives itself. Without the translation in either case.
osg::Matrix normalMatrix(const osg::Matrix& matrix);

}  // namespace nbrender
