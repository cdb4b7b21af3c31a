// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// What all geometry properties share: they know the geometries that use them (getParents), and an
/// edit of a property is an edit of these.
class GeoPropertyBase : public Attachment
{
public:
    /// Has every geometry that uses the property take note.
    void changed(BitVector whichField, UInt32 origin) override;

    void ownerAdded(FieldContainer& owner) override;
    void ownerRemoved(FieldContainer& owner) override;

protected:
    GeoPropertyBase() = default;
    GeoPropertyBase(const GeoPropertyBase&) = default;

    /// The geometries count the edit.
    void noteEdit() override;
};

/// A row of values of one kind, whatever the numbers that store them. Indices must be valid.
template <class GenericT>
class GeoProperty : public GeoPropertyBase
{
public:
    using GenericType = GenericT;

    virtual UInt32 getSize() const = 0;

    UInt32 size() const { return getSize(); }

    virtual GenericT getValue(UInt32 index) const = 0;

    void getValue(GenericT& result, UInt32 index) const { result = getValue(index); }

    /// The value comes first.
    virtual void setValue(const GenericT& value, UInt32 index) = 0;

    virtual void addValue(const GenericT& value) = 0;

    void push_back(const GenericT& value) { addValue(value); }

    virtual void resize(UInt32 newSize) = 0;

    void clear() { resize(0); }

protected:
    GeoProperty() = default;
    GeoProperty(const GeoProperty&) = default;
};

namespace detail {

/// Conversion between stored and generic values; colours of bytes run to 255, alpha is 1.
template <class To, class From>
struct PropertyValue
{
    static To convert(const From& value) { return To(value); }
};

template <class ValueT>
ValueT fullColor()
{
    return std::is_integral_v<ValueT> ? ValueT(255) : ValueT(1);
}

/// Scales between the ranges of two kinds of colour components.
template <class To, class From>
To colorComponent(From value)
{
    if constexpr (std::is_same_v<To, From>) {
        return value;
    } else {
        const Real32 unit = Real32(value) / Real32(fullColor<From>());
        const Real32 scaled = osgClamp(0.0F, unit, 1.0F) * Real32(fullColor<To>());
        return std::is_integral_v<To> ? To(scaled + 0.5F) : To(scaled);
    }
}

template <class To, class From>
struct PropertyValue<Color3<To>, Color3<From>>
{
    static Color3<To> convert(const Color3<From>& c)
    {
        return Color3<To>(colorComponent<To>(c[0]), colorComponent<To>(c[1]),
                          colorComponent<To>(c[2]));
    }
};

template <class To, class From>
struct PropertyValue<Color3<To>, Color4<From>>
{
    static Color3<To> convert(const Color4<From>& c)
    {
        return Color3<To>(colorComponent<To>(c[0]), colorComponent<To>(c[1]),
                          colorComponent<To>(c[2]));
    }
};

template <class To, class From>
struct PropertyValue<Color4<To>, Color3<From>>
{
    static Color4<To> convert(const Color3<From>& c)
    {
        return Color4<To>(colorComponent<To>(c[0]), colorComponent<To>(c[1]),
                          colorComponent<To>(c[2]), fullColor<To>());
    }
};

/// A point of four components is at w = 1.
template <class To, class From>
struct PropertyValue<PointInterface<To, 4>, PointInterface<From, 3>>
{
    static PointInterface<To, 4> convert(const PointInterface<From, 3>& p)
    {
        return PointInterface<To, 4>(To(p[0]), To(p[1]), To(p[2]), To(1));
    }
};

}  // namespace detail

/// A property that stores its values in a multi field.
template <class BaseT, class StoredT>
class GeoPropertyArray : public BaseT
{
public:
    using StoredType = StoredT;
    using StoredFieldType = MField<StoredT>;
    using GenericType = typename BaseT::GenericType;

    enum
    {
        GeoPropDataFieldId = BaseT::NextFieldId,
        NextFieldId
    };

    static constexpr BitVector GeoPropDataFieldMask = BitVector(1) << GeoPropDataFieldId;

    using BaseT::getValue;

    UInt32 getSize() const override { return field.getSize(); }

    GenericType getValue(UInt32 index) const override
    {
        return detail::PropertyValue<GenericType, StoredT>::convert(field[index]);
    }

    void setValue(const GenericType& value, UInt32 index) override
    {
        field[index] = detail::PropertyValue<StoredT, GenericType>::convert(value);
    }

    void addValue(const GenericType& value) override
    {
        field.push_back(detail::PropertyValue<StoredT, GenericType>::convert(value));
    }

    void resize(UInt32 newSize) override { field.resize(newSize); }

    /// The stored values; who changes them ends an edit of the property.
    MField<StoredT>& getField() { return field; }

    const MField<StoredT>& getField() const { return field; }

    MField<StoredT>* getFieldPtr() { return &field; }

    const MField<StoredT>* getFieldPtr() const { return &field; }

protected:
    GeoPropertyArray() = default;
    GeoPropertyArray(const GeoPropertyArray&) = default;

private:
    MField<StoredT> field;
};

}  // namespace osg
