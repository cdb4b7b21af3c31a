// SPDX-License-Identifier: MIT
#include "NormalMatrix.h"

namespace nbrender {

osg::Matrix normalMatrix(const osg::Matrix& matrix)
{
    osg::Matrix linear = matrix;
    linear.setTranslate(0.0F, 0.0F, 0.0F);
    osg::Matrix result;
    if (!linear.inverse(result)) {
        return linear;
    }
    result.transpose();
    return result;
}

}  // namespace nbrender
