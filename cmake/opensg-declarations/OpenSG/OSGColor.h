// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

namespace osg {
template <class V>
class Color3
{
public:
    Color3();
    explicit Color3(const V* values);
    Color3(V red, V green, V blue);
    void setValuesRGB(V red, V green, V blue);
    void setValue(const Color3& source);
    V* getValuesRGB();
    const V* getValuesRGB() const;
    V red() const;
    V green() const;
    V blue() const;
    V& operator[](UInt32 index);
    const V& operator[](UInt32 index) const;
    bool equals(const Color3& other, V tolerance) const;
    bool operator==(const Color3& other) const;
    bool operator!=(const Color3& other) const;

private:
    V numbers[3];
};

typedef Color3<Real32> Color3f;
typedef Color3<UInt8> Color3ub;

template <class V>
class Color4
{
public:
    Color4();
    explicit Color4(const V* values);
    Color4(V red, V green, V blue, V alpha);
    void setValuesRGBA(V red, V green, V blue, V alpha);
    void setValue(const Color4& source);
    V* getValuesRGBA();
    const V* getValuesRGBA() const;
    V red() const;
    V green() const;
    V blue() const;
    V alpha() const;
    V& operator[](UInt32 index);
    const V& operator[](UInt32 index) const;
    bool equals(const Color4& other, V tolerance) const;
    bool operator==(const Color4& other) const;
    bool operator!=(const Color4& other) const;

private:
    V numbers[4];
};

typedef Color4<Real32> Color4f;
typedef Color4<UInt8> Color4ub;
}  // namespace osg
