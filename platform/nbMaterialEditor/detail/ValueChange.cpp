// SPDX-License-Identifier: MIT
#include "ValueChange.h"

#include <nbMaterialEditor/detail/AttributeReader.h>

#include <array>

namespace nbValueChange {

namespace {

constexpr const char* kNoReciprocal = "has no finite reciprocal";

float repeatOf(float scale, float startRepeat)
{
    return 1.0F / startRepeat == scale ? startRepeat : 1.0F / scale;
}

/// Reads a scale; the repeats stay if there is none.
void readScale(AttributeReader& reader, const char* name, const osg::Vec2f& startRepeat,
               osg::Vec2f& repeat)
{
    std::optional<osg::Vec2f> scale;
    reader.read(name, scale);
    if (!scale) {
        return;
    }
    repeat =
        osg::Vec2f(repeatOf(scale->x(), startRepeat.x()), repeatOf(scale->y(), startRepeat.y()));
    if (!std::isnormal(repeat.x()) || !std::isnormal(repeat.y())) {
        reader.refuse(name, kNoReciprocal);
    }
}

template <class Value>
void readInto(AttributeReader& reader, const char* name, Value& target)
{
    std::optional<Value> value;
    reader.read(name, value);
    target = value.value_or(target);
}

/// A length that divides.
void readLength(AttributeReader& reader, const char* name, float& target)
{
    std::optional<float> value;
    reader.read(name, value);
    if (value && !std::isnormal(1.0F / *value)) {
        reader.refuse(name, kNoReciprocal);
    }
    target = value.value_or(target);
}

}  // namespace

bool readTriplanar(const nbMessage& message, const nbTextureValues& start, nbTextureValues& values,
                   std::string& reason)
{
    constexpr std::array<const char*, 3> kOffsets { "XOffset", "YOffset", "ZOffset" };
    constexpr std::array<const char*, 3> kScales { "XScale", "YScale", "ZScale" };
    AttributeReader reader(message, reason);
    for (osg::UInt32 axis = 0; axis < 3; ++axis) {
        osg::Vec2f offset(values.triplanarOffsetU[axis], values.triplanarOffsetV[axis]);
        readInto(reader, kOffsets[axis], offset);
        values.triplanarOffsetU[axis] = offset.x();
        values.triplanarOffsetV[axis] = offset.y();

        osg::Vec2f repeat(values.triplanarRepeatU[axis], values.triplanarRepeatV[axis]);
        readScale(reader, kScales[axis],
                  osg::Vec2f(start.triplanarRepeatU[axis], start.triplanarRepeatV[axis]), repeat);
        values.triplanarRepeatU[axis] = repeat.x();
        values.triplanarRepeatV[axis] = repeat.y();
    }
    readInto(reader, "rotate", values.triplanarRotation);
    return reader.isGood();
}

bool readUv(const nbMessage& message, const nbTextureValues& start, nbTextureValues& values,
            std::string& reason)
{
    AttributeReader reader(message, reason);
    readInto(reader, "offset", values.offset);
    readInto(reader, "rotate", values.rotate);
    readScale(reader, "scale", start.repeat, values.repeat);
    return reader.isGood();
}

bool readTire(const nbMessage& message, const nbTextureValues&, nbTextureValues& values,
              std::string& reason)
{
    AttributeReader reader(message, reason);
    readInto(reader, "center", values.tireCenter);
    readLength(reader, "ScaleHeight", values.tireScaleHeight);
    readLength(reader, "ScaleRadius", values.tireScaleRadius);
    readLength(reader, "ScaleU", values.tireScaleU);
    readInto(reader, "autoParameter", values.tireAutoParameter);
    return reader.isGood();
}

}  // namespace nbValueChange
