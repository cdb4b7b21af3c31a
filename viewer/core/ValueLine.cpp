// SPDX-License-Identifier: MIT
#include "viewer/core/ValueLine.h"

#include <QString>

namespace viewer {

std::string valueLine(const char* what, const osg::Vec3f& values)
{
    constexpr int kDigits = 3;
    QString text = QLatin1String(what) + QStringLiteral(" (%1, %2, %3)");
    for (osg::UInt32 i = 0; i < 3; ++i) {
        // A negative zero would flicker.
        text = text.arg(static_cast<double>(values[i]) + 0.0, 0, 'f', kDigits);
    }
    return text.toStdString();
}

}  // namespace viewer
