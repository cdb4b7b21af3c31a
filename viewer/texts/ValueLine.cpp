// SPDX-License-Identifier: MIT
#include "viewer/texts/ValueLine.h"

#include "viewer/texts/Text.h"

#include <QString>
#include <QStringList>

namespace viewer {
namespace {

std::string lineOf(const char* what, const float* values, int count)
{
    constexpr int kDigits = 3;
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        // A negative zero would flicker.
        texts.append(QString::number(static_cast<double>(values[i]) + 0.0, 'f', kDigits));
    }
    return QStringLiteral("%1 (%2)")
        .arg(Text::tr(what), texts.join(QStringLiteral(", ")))
        .toStdString();
}

}  // namespace

std::string valueLine(const char* what, const osg::Vec3f& values)
{
    return lineOf(what, values.getValues(), 3);
}

std::string valueLine(const char* what, const osg::Vec2f& values)
{
    return lineOf(what, values.getValues(), 2);
}

std::string valueLine(const char* what, float value)
{
    return lineOf(what, &value, 1);
}

}  // namespace viewer
