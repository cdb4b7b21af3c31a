// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGViewport.h>
#include <OpenSG/OSGWindow.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <ViewRay.h>

namespace osg {

namespace {

using Row = std::array<double, 4>;
using Grid = std::array<Row, 4>;  // [row][column]

Grid gridOf(const Matrix& matrix)
{
    Grid result {};
    for (UInt32 row = 0; row < 4; ++row) {
        for (UInt32 column = 0; column < 4; ++column) {
            result[row][column] = static_cast<double>(matrix[column][row]);
        }
    }
    return result;
}

/// a * b in double.
Grid product(const Grid& a, const Matrix& b)
{
    Grid result {};
    for (UInt32 row = 0; row < 4; ++row) {
        for (UInt32 column = 0; column < 4; ++column) {
            double sum = 0.0;
            for (UInt32 k = 0; k < 4; ++k) {
                sum += a[row][k] * static_cast<double>(b[column][k]);
            }
            result[row][column] = sum;
        }
    }
    return result;
}

/// Two solutions of the same equations with different right sides.
struct RowPair
{
    Row first {};
    Row second {};
};

/// Solves m * x = b for both b by one elimination with row exchanges; zeros if m is singular.
RowPair solve(Grid m, RowPair b)
{
    Row inversePivots {};
    for (UInt32 column = 0; column < 4; ++column) {
        UInt32 pivot = column;
        for (UInt32 row = column + 1; row < 4; ++row) {
            if (std::fabs(m[row][column]) > std::fabs(m[pivot][column])) {
                pivot = row;
            }
        }
        if (!(std::fabs(m[pivot][column]) > 0.0)) {
            return {};
        }
        if (pivot != column) {
            std::swap(m[pivot], m[column]);
            std::swap(b.first[pivot], b.first[column]);
            std::swap(b.second[pivot], b.second[column]);
        }
        inversePivots[column] = 1.0 / m[column][column];
        for (UInt32 row = column + 1; row < 4; ++row) {
            const double factor = m[row][column] * inversePivots[column];
            for (UInt32 k = column + 1; k < 4; ++k) {
                m[row][k] -= factor * m[column][k];
            }
            b.first[row] -= factor * b.first[column];
            b.second[row] -= factor * b.second[column];
        }
    }
    for (UInt32 i = 4; i-- > 0;) {
        for (UInt32 k = i + 1; k < 4; ++k) {
            b.first[i] -= m[i][k] * b.first[k];
            b.second[i] -= m[i][k] * b.second[k];
        }
        b.first[i] *= inversePivots[i];
        b.second[i] *= inversePivots[i];
    }
    return b;
}

/// The point of homogeneous coordinates; the origin if they have none.
Pnt3f pointOf(const Row& p)
{
    const double scale = std::fabs(p[3]) > 0.0 ? 1.0 / p[3] : 0.0;
    return { static_cast<Real32>(p[0] * scale), static_cast<Real32>(p[1] * scale),
             static_cast<Real32>(p[2] * scale) };
}

/// Unit direction from one homogeneous point to another; zero if they are one.
Vec3f directionBetween(const Row& from, const Row& to)
{
    const double sign = from[3] * to[3] < 0.0 ? -1.0 : 1.0;
    Row d {};
    for (UInt32 i = 0; i < 3; ++i) {
        d[i] = sign * (to[i] * from[3] - from[i] * to[3]);
    }
    // Scaled, so that no square leaves the range of numbers.
    const double largest = std::max({ std::fabs(d[0]), std::fabs(d[1]), std::fabs(d[2]) });
    if (!(largest > 0.0) || !std::isfinite(largest)) {
        return {};
    }
    const double inverse = 1.0 / largest;
    for (UInt32 i = 0; i < 3; ++i) {
        d[i] *= inverse;
    }
    const double length = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
    const double scale = 1.0 / length;
    return { static_cast<Real32>(d[0] * scale), static_cast<Real32>(d[1] * scale),
             static_cast<Real32>(d[2] * scale) };
}

}  // namespace

bool glue::viewRay(Line& line, const CameraPtr& camera, Int32 x, Int32 y, const Viewport& port)
{
    if (port.getParent() == NullFC) {
        SWARNING << "viewRay: the viewport is in no window" << std::endl;
        return false;
    }
    if (port.getPixelWidth() <= 0 || port.getPixelHeight() <= 0) {
        return false;
    }
    const auto width = static_cast<UInt32>(port.getPixelWidth());
    const auto height = static_cast<UInt32>(port.getPixelHeight());
    const Int32 fromTop = y - (port.getParent()->getHeight() - port.getPixelTop());
    const double ndcX = 2.0 * (x - port.getPixelLeft()) / width - 1.0;
    const double ndcY = 1.0 - 2.0 * fromTop / height;

    Matrix projection;
    Matrix translation;
    Matrix viewing;
    camera->getProjection(projection, width, height);
    camera->getProjectionTranslation(translation, width, height);
    camera->getViewing(viewing, width, height);
    Grid screenFromWorld = gridOf(projection);
    if (translation != Matrix::identity()) {
        screenFromWorld = product(screenFromWorld, translation);
    }
    screenFromWorld = product(screenFromWorld, viewing);

    // In double and by homogeneous points: in single precision the difference of two close points
    // loses the direction far from the origin. A far plane at infinity works too.
    const auto [front, back] =
        solve(screenFromWorld, { { ndcX, ndcY, -1.0, 1.0 }, { ndcX, ndcY, 1.0, 1.0 } });
    line.setValue(pointOf(front), directionBetween(front, back));
    return true;
}

}  // namespace osg
