// SPDX-License-Identifier: MIT
#include "viewer/match/MatchWords.h"

#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/texts/Text.h"

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

PerspectiveQuality qualityOf(const PerspectiveMatchTool& tool)
{
    constexpr double kHandPx = 0.5;  // how well a person lays an end
    return tool.camera().judgePerspectiveMatch(kHandPx / tool.photograph().unitPx());
}

}  // namespace

QString lineTitle(int line)
{
    return QString(PerspectiveMatchTool::lineName(line)).toUpper();
}

QString resultText(const PerspectiveMatchTool& tool)
{
    switch (tool.camera().checkPerspectiveMatch()) {
    case nbCameraTypes::Solved:
        return Text::tr("Orientation and field of view follow the lines.");
    case nbCameraTypes::SolvedWithKeptFov:
        return Text::tr("The orientation follows the lines; the field of view is kept.");
    case nbCameraTypes::OrthographicCamera:
        return Text::tr("An orthographic view cannot be matched: switch to perspective.");
    case nbCameraTypes::UnusableLine:
        return Text::tr("A line is too short: the camera stays.");
    case nbCameraTypes::IdenticalLines:
        return Text::tr("Two lines of an axis lie on each other: the camera stays.");
    case nbCameraTypes::ContradictingLines:
        return Text::tr("The lines contradict each other: the camera stays.");
    case nbCameraTypes::NoCamera:
        break;
    }
    return Text::tr("There is no camera to be matched.");
}

std::array<double, PerspectiveMatchTool::kLineCount> residualsPx(const PerspectiveMatchTool& tool)
{
    std::array<double, PerspectiveMatchTool::kLineCount> result = qualityOf(tool).residuals;
    for (double& residual : result) {
        residual *= tool.photograph().unitPx();
    }
    return result;
}

QString qualityText(const PerspectiveMatchTool& tool)
{
    if (!nbCameraTypes::isSolved(tool.camera().checkPerspectiveMatch())) {
        return {};
    }
    const PerspectiveQuality told = qualityOf(tool);
    const auto number = [](double value) { return QString::number(value, 'f', 1); };
    const auto residuals = residualsPx(tool);
    const auto worst = std::max_element(residuals.begin(), residuals.end());
    QStringList parts;
    if (std::isfinite(told.fovDeg) && told.fovDeg > 0.0) {
        parts.append(Text::tr("Field of view ±%1°.").arg(number(told.fovDeg)));
    }
    if (std::isfinite(told.rotationDeg)) {
        parts.append(Text::tr("Orientation ±%1°.").arg(number(told.rotationDeg)));
    }
    if (*worst >= 1.0) {
        parts.append(
            Text::tr("Line %1 is off by %2 pixels.")
                .arg(lineTitle(static_cast<int>(worst - residuals.begin())), number(*worst)));
    }
    const QString axis =
        told.doubtfulAxis < 0 ? QString() : QString(QChar('X' + told.doubtfulAxis));
    if (told.doubt == PerspectiveDoubt::NoFieldOfViewFits) {
        parts.append(
            Text::tr("No camera sees right angles so: check which lines belong together."));
    } else if (told.doubt != PerspectiveDoubt::NoDoubt) {
        parts.append(
            Text::tr("The lines of %1 are almost parallel in the picture, so it hardly "
                     "tells the field of view: use lines of a third axis, or set the lens.")
                .arg(axis));
    }
    return parts.join(' ');
}

}  // namespace viewer
