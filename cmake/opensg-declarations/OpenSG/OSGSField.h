// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {
class DataType
{
public:
    DataType(const Char8* name, const Char8* parentName);
};

class Field
{
public:
    virtual ~Field();
};

class FieldType
{
public:
    enum Cardinality
    {
        SINGLE_FIELD,
        MULTI_FIELD
    };

    FieldType(const Char8* name, const Char8* parentName, const DataType& content,
              Field* (*create)(), Cardinality cardinality);
};

template <class Value>
struct FieldDataTraits
{
    static DataType& getType();
    static const char* getSName();
    static const char* getPName();
};

template <class Value, bool isPointer>
struct FieldTraitsRecurseMapper
{
    static const char* getPName();
};

template <class Value, Int32 space = 0>
class SField : public Field
{
public:
    typedef Value StoredType;
    typedef FieldDataTraits<Value> SFieldTraits;
    static const FieldType& getClassType();
    static Field* create();
    SField();
    explicit SField(const Value& value);
    Value& getValue();
    const Value& getValue() const;
    void setValue(const Value& value);
    void syncWith(SField& source);

private:
    static const FieldType _fieldType;
};
}  // namespace osg
