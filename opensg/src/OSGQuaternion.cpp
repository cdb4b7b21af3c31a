// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGQuaternion.h>

#include <locale>
#include <sstream>

namespace osg {

namespace {

/// Cosine beyond which a turn between directions counts as none or as a half one.
constexpr Real64 kNearlyParallel = 0.99999;

/// One minus the cosine below which slerp is linear.
constexpr Real64 kSlerpLinear = 1e-5;

/// Reads four numbers with "." as the decimal point, whatever the locale.
template <class ValueT>
bool readFour(const Char8* text, ValueT (&numbers)[4])
{
    std::istringstream stream(text == nullptr ? "" : text);
    stream.imbue(std::locale::classic());
    for (ValueT& number : numbers) {
        stream >> number;
    }
    if (stream.fail()) {
        SWARNING << "Quaternion: not an axis and an angle: \"" << stream.str() << '"' << std::endl;
        return false;
    }
    return true;
}

}  // namespace

template <class ValueT>
const QuaternionBase<ValueT>& QuaternionBase<ValueT>::identity()
{
    static constexpr QuaternionBase kIdentity;
    return kIdentity;
}

template <class ValueT>
QuaternionBase<ValueT> QuaternionBase<ValueT>::slerp(const QuaternionBase& a,
                                                     const QuaternionBase& b, ValueT t)
{
    ValueT cosine = a[0] * b[0] + a[1] * b[1] + a[2] * b[2] + a[3] * b[3];
    const ValueT sign = cosine < 0 ? ValueT(-1) : ValueT(1);
    cosine *= sign;

    ValueT partA = 1 - t;
    ValueT partB = t;
    if (1 - cosine > ValueT(kSlerpLinear)) {
        const ValueT angle = osgacos(cosine);
        const ValueT sine = osgsin(angle);
        partA = osgsin(partA * angle) / sine;
        partB = osgsin(partB * angle) / sine;
    }
    partB *= sign;

    QuaternionBase result;
    for (UInt32 i = 0; i < 4; ++i) {
        result[i] = partA * a[i] + partB * b[i];
    }
    return result;
}

template <class ValueT>
void QuaternionBase<ValueT>::setValueAsAxisRad(const VectorType& axis, ValueT radians)
{
    const ValueT size = axis.length();
    if (!(size > ValueT(Eps))) {
        setIdentity();
        return;
    }
    const ValueT scale = osgsin(radians / 2) / size;
    setValueAsQuat(axis[0] * scale, axis[1] * scale, axis[2] * scale, osgcos(radians / 2));
}

template <class ValueT>
void QuaternionBase<ValueT>::setValueAsAxisRad(const Char8* text)
{
    ValueT numbers[4];
    if (readFour(text, numbers)) {
        setValueAsAxisRad(numbers);
    }
}

template <class ValueT>
void QuaternionBase<ValueT>::setValueAsAxisDeg(const Char8* text)
{
    ValueT numbers[4];
    if (readFour(text, numbers)) {
        setValueAsAxisDeg(numbers);
    }
}

template <class ValueT>
void QuaternionBase<ValueT>::setValue(const MatrixType& m)
{
    // The largest component comes from the diagonal, the others from sums and differences with it.
    const ValueT trace = m[0][0] + m[1][1] + m[2][2];
    if (trace > 0) {
        const ValueT root = osgsqrt(trace + 1);
        const ValueT scale = ValueT(0.5) / root;
        setValueAsQuat((m[1][2] - m[2][1]) * scale, (m[2][0] - m[0][2]) * scale,
                       (m[0][1] - m[1][0]) * scale, root / 2);
        return;
    }

    UInt32 i = m[1][1] > m[0][0] ? 1 : 0;
    i = m[2][2] > m[i][i] ? 2 : i;
    const UInt32 j = (i + 1) % 3;
    const UInt32 k = (i + 2) % 3;
    const ValueT root = osgsqrt(osgMax(m[i][i] - m[j][j] - m[k][k] + 1, ValueT(0)));
    const ValueT scale = root > ValueT(0) ? ValueT(0.5) / root : ValueT(0);
    values[i] = root / 2;
    values[j] = (m[j][i] + m[i][j]) * scale;
    values[k] = (m[k][i] + m[i][k]) * scale;
    values[3] = (m[j][k] - m[k][j]) * scale;
}

template <class ValueT>
void QuaternionBase<ValueT>::setValue(const VectorType& from, const VectorType& to)
{
    VectorType start(from);
    VectorType end(to);
    start.normalize();
    end.normalize();
    const ValueT cosine = start.dot(end);

    if (cosine > ValueT(kNearlyParallel)) {
        // Deliberate: a turn this small is dropped.
        setIdentity();
        return;
    }
    if (cosine < ValueT(-kNearlyParallel)) {
        // Any axis at right angles serves a half turn.
        VectorType axis = start.cross(VectorType(1, 0, 0));
        if (axis.length() < ValueT(Eps)) {
            axis = start.cross(VectorType(0, 1, 0));
        }
        setValueAsAxisRad(axis, ValueT(Pi));
        return;
    }

    VectorType axis = start.cross(end);
    axis.normalize();
    axis *= osgsqrt((1 - cosine) / 2);
    // Deliberate: from a zero vector comes (0, 0, 0, 0.7071), which is not a unit quaternion.
    setValueAsQuat(axis[0], axis[1], axis[2], osgsqrt((1 + cosine) / 2));
}

template <class ValueT>
void QuaternionBase<ValueT>::setValue(ValueT alpha, ValueT beta, ValueT gamma)
{
    *this = QuaternionBase(VectorType(0, 0, 1), gamma);
    mult(QuaternionBase(VectorType(0, 1, 0), beta));
    mult(QuaternionBase(VectorType(1, 0, 0), alpha));
}

template <class ValueT>
void QuaternionBase<ValueT>::getValueAsAxisRad(VectorType& axis, ValueT& radians) const
{
    const VectorType direction(values[0], values[1], values[2]);
    const ValueT size = direction.length();
    if (!(size > ValueT(Eps))) {
        axis = VectorType(0, 0, 1);
        radians = 0;
        return;
    }
    axis = direction * (1 / size);
    // The arc tangent stays exact for small angles, where the cosine loses its digits.
    radians = 2 * osgatan2(size, values[3]);
}

template <class ValueT>
void QuaternionBase<ValueT>::getValueAsAxisRad(ValueT& axisX, ValueT& axisY, ValueT& axisZ,
                                               ValueT& radians) const
{
    VectorType axis;
    getValueAsAxisRad(axis, radians);
    axisX = axis[0];
    axisY = axis[1];
    axisZ = axis[2];
}

template <class ValueT>
void QuaternionBase<ValueT>::getValueAsAxisDeg(VectorType& axis, ValueT& degrees) const
{
    ValueT radians = 0;
    getValueAsAxisRad(axis, radians);
    degrees = osgrad2degree(radians);
}

template <class ValueT>
void QuaternionBase<ValueT>::getValueAsAxisDeg(ValueT& axisX, ValueT& axisY, ValueT& axisZ,
                                               ValueT& degrees) const
{
    getValueAsAxisRad(axisX, axisY, axisZ, degrees);
    degrees = osgrad2degree(degrees);
}

template <class ValueT>
void QuaternionBase<ValueT>::getValuesOnly(MatrixType& m) const
{
    const ValueT qx = values[0], qy = values[1], qz = values[2], qw = values[3];
    m[0][0] = 1 - 2 * (qy * qy + qz * qz);
    m[0][1] = 2 * (qx * qy + qz * qw);
    m[0][2] = 2 * (qz * qx - qy * qw);
    m[1][0] = 2 * (qx * qy - qz * qw);
    m[1][1] = 1 - 2 * (qz * qz + qx * qx);
    m[1][2] = 2 * (qy * qz + qx * qw);
    m[2][0] = 2 * (qz * qx + qy * qw);
    m[2][1] = 2 * (qy * qz - qx * qw);
    m[2][2] = 1 - 2 * (qy * qy + qx * qx);
}

template <class ValueT>
void QuaternionBase<ValueT>::normalize()
{
    VectorInterface<ValueT, 4> unit(values);
    unit.normalize();
    setValueAsQuat(unit.getValues());
}

template <class ValueT>
void QuaternionBase<ValueT>::scaleAngle(ValueT factor)
{
    VectorType axis;
    ValueT radians = 0;
    getValueAsAxisRad(axis, radians);
    setValueAsAxisRad(axis, radians * factor);
}

template class QuaternionBase<Real32>;
template class QuaternionBase<Real64>;

}  // namespace osg
