// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

// Deliberately without Ptr: the property classes have none.
#define OSG_DECLARED_PROPERTY(Class, Base, BasePtr)                                                \
    class Class;                                                                                   \
    typedef FCPtr<BasePtr, Class> Class##Ptr;                                                      \
    class Class : public Base                                                                      \
    {                                                                                              \
    public:                                                                                        \
        static FieldContainerType& getClassType();                                                 \
        static Class##Ptr create();
#define OSG_DECLARED_KIND(Class, Value)                                                            \
    OSG_DECLARED_PROPERTY(Class, Attachment, AttachmentPtr)                                        \
    virtual UInt32 getSize() const;                                                                \
    UInt32 size() const;                                                                           \
    virtual Value getValue(const UInt32 index) const;                                              \
    virtual void getValue(Value& result, const UInt32 index) const;                                \
    virtual void setValue(const Value& value, const UInt32 index);                                 \
    virtual void addValue(const Value& value);                                                     \
    void push_back(const Value& value);                                                            \
    virtual void clear();                                                                          \
    virtual void resize(std::size_t size);                                                         \
    }                                                                                              \
    ;                                                                                              \
    typedef RefPtr<Class##Ptr> Class##RefPtr
#define OSG_DECLARED_STORED(Class, Base, Value)                                                    \
    OSG_DECLARED_PROPERTY(Class, Base, Base##Ptr)                                                  \
    typedef MField<Value> StoredFieldType;                                                         \
    StoredFieldType& getField();                                                                   \
    const StoredFieldType& getField() const;                                                       \
    StoredFieldType* getFieldPtr();                                                                \
    }                                                                                              \
    ;                                                                                              \
    typedef RefPtr<Class##Ptr> Class##RefPtr

namespace osg {
OSG_DECLARED_KIND(GeoPTypes, UInt32);
OSG_DECLARED_STORED(GeoPTypesUI8, GeoPTypes, UInt8);
OSG_DECLARED_KIND(GeoPLengths, UInt32);
OSG_DECLARED_STORED(GeoPLengthsUI8, GeoPLengths, UInt8);
OSG_DECLARED_STORED(GeoPLengthsUI16, GeoPLengths, UInt16);
OSG_DECLARED_STORED(GeoPLengthsUI32, GeoPLengths, UInt32);
OSG_DECLARED_KIND(GeoPositions, Pnt3f);
OSG_DECLARED_STORED(GeoPositions2f, GeoPositions, Pnt2f);
OSG_DECLARED_STORED(GeoPositions3f, GeoPositions, Pnt3f);
OSG_DECLARED_STORED(GeoPositions4f, GeoPositions, Pnt4f);
OSG_DECLARED_STORED(GeoPositions2d, GeoPositions, Pnt2d);
OSG_DECLARED_STORED(GeoPositions3d, GeoPositions, Pnt3d);
OSG_DECLARED_STORED(GeoPositions4d, GeoPositions, Pnt4d);
OSG_DECLARED_KIND(GeoNormals, Vec3f);
OSG_DECLARED_STORED(GeoNormals3f, GeoNormals, Vec3f);
OSG_DECLARED_KIND(GeoColors, Color3f);
OSG_DECLARED_STORED(GeoColors3f, GeoColors, Color3f);
OSG_DECLARED_STORED(GeoColors4f, GeoColors, Color4f);
OSG_DECLARED_STORED(GeoColors3ub, GeoColors, Color3ub);
OSG_DECLARED_STORED(GeoColors4ub, GeoColors, Color4ub);
OSG_DECLARED_KIND(GeoTexCoords, Vec2f);
OSG_DECLARED_STORED(GeoTexCoords2f, GeoTexCoords, Vec2f);
OSG_DECLARED_STORED(GeoTexCoords3f, GeoTexCoords, Vec3f);
OSG_DECLARED_KIND(GeoIndices, UInt32);
OSG_DECLARED_STORED(GeoIndicesUI16, GeoIndices, UInt16);
OSG_DECLARED_STORED(GeoIndicesUI32, GeoIndices, UInt32);
}  // namespace osg
