// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>

#include <string>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameter, AttachmentPtr);

#define OSG_SHADER_PARAMETER_FIELDS(VALUE, OWNED, LINK)                                            \
    VALUE(Name, name, std::string, std::string())

/// A uniform variable of a shader: a name here, a value of one type in the derived classes.
/// The classes with an M before the type hold arrays.
/// Left out of OpenSG's class: locations in a program, flags.
class ShaderParameter : public Attachment
{
    OSG_ABSTRACT_CONTAINER(ShaderParameter, Attachment, OSG_SHADER_PARAMETER_FIELDS);
};

#define OSG_SHADER_PARAMETER_VALUE_FIELDS(VALUE, OWNED, LINK)                                      \
    VALUE(Value, value, ValueType, ValueType())
#define OSG_SHADER_PARAMETER_ARRAY_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)               \
    VALUES(Value, value, ValueType)

/// Declares the class of the variables of a type.
#define OSG_SHADER_PARAMETER_(Class, Type)                                                         \
    OSG_CONTAINER_POINTER(Class, ShaderParameterPtr);                                              \
    class Class : public ShaderParameter                                                           \
    {                                                                                              \
        typedef Type ValueType;                                                                    \
        OSG_CONTAINER(Class, ShaderParameter, OSG_SHADER_PARAMETER_VALUE_FIELDS);                  \
    }

/// Declares the class of the variables that are arrays of a type.
#define OSG_SHADER_PARAMETER_ARRAY_(Class, Type)                                                   \
    OSG_CONTAINER_POINTER(Class, ShaderParameterPtr);                                              \
    class Class : public ShaderParameter                                                           \
    {                                                                                              \
        typedef Type ValueType;                                                                    \
        OSG_MULTI_CONTAINER(Class, ShaderParameter, OSG_SHADER_PARAMETER_ARRAY_FIELDS);            \
    }

}  // namespace osg
