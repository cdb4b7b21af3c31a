// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGShaderChunk.h>
#include <OpenSG/OSGShaderParameterBool.h>
#include <OpenSG/OSGShaderParameterChunk.h>
#include <OpenSG/OSGShaderParameterInt.h>
#include <OpenSG/OSGShaderParameterMInt.h>
#include <OpenSG/OSGShaderParameterMMatrix.h>
#include <OpenSG/OSGShaderParameterMReal.h>
#include <OpenSG/OSGShaderParameterMVec2f.h>
#include <OpenSG/OSGShaderParameterMVec3f.h>
#include <OpenSG/OSGShaderParameterMVec4f.h>
#include <OpenSG/OSGShaderParameterMatrix.h>
#include <OpenSG/OSGShaderParameterReal.h>
#include <OpenSG/OSGShaderParameterVec2f.h>
#include <OpenSG/OSGShaderParameterVec3f.h>
#include <OpenSG/OSGShaderParameterVec4f.h>

#include <algorithm>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(ShaderParameter, Attachment);
OSG_CONTAINER_TYPE(ShaderParameterBool, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterInt, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterReal, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterVec2f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterVec3f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterVec4f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMatrix, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMInt, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMReal, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMVec2f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMVec3f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMVec4f, ShaderParameter);
OSG_CONTAINER_TYPE(ShaderParameterMMatrix, ShaderParameter);

OSG_ABSTRACT_CONTAINER_TYPE(ShaderParameterChunk, StateChunk);
OSG_ABSTRACT_CONTAINER_TYPE(ShaderChunk, ShaderParameterChunk);
OSG_STATE_CHUNK_TYPE(SHLChunk, ShaderChunk);

namespace {

/// The class of parameters that are arrays of a type.
template <class Value>
struct ArrayParameter;

// clang-format off
template <> struct ArrayParameter<Int32> { using Type = ShaderParameterMInt; };
template <> struct ArrayParameter<Real32> { using Type = ShaderParameterMReal; };
template <> struct ArrayParameter<Vec2f> { using Type = ShaderParameterMVec2f; };
template <> struct ArrayParameter<Vec3f> { using Type = ShaderParameterMVec3f; };
template <> struct ArrayParameter<Vec4f> { using Type = ShaderParameterMVec4f; };
template <> struct ArrayParameter<Matrix> { using Type = ShaderParameterMMatrix; };

// clang-format on

/// Reads the value of a parameter, if it is of this class.
template <class Parameter, class Value>
bool readParameter(const ShaderParameterPtr& source, Value& value)
{
    const auto typed = Parameter::Ptr::dcast(source);
    if (typed == NullFC) {
        return false;
    }
    value = typed->getValue();
    return true;
}

}  // namespace

ShaderParameterChunk::ShaderParameterChunk(const ShaderParameterChunk& source)
    : Inherited(source)
    , mfParameters(source.mfParameters)
    , counted(source.counted)
{
    freeUnlisted();
}

template <class Parameter, class Value>
bool ShaderParameterChunk::setParameter(const Char8* name, const Value& value)
{
    if (name == nullptr || *name == '\0') {
        SWARNING << "ShaderParameterChunk::setUniformParameter: the name is empty" << std::endl;
        return false;
    }
    freeUnlisted();
    const ShaderParameterPtr present = findParameter(name);
    auto parameter = Parameter::Ptr::dcast(present);
    if (present != NullFC && parameter == NullFC) {
        SWARNING << "ShaderParameterChunk::setUniformParameter: " << name << " is a "
                 << present->getTypeName() << ", no " << Parameter::getClassType().getCName()
                 << std::endl;
        return false;
    }
    if (present == NullFC) {
        parameter = Parameter::create();
        parameter->setName(name);
        counted.emplace_back(parameter);
        mfParameters.push_back(parameter);
    }
    beginEditCP(parameter, Parameter::ValueFieldMask);
    parameter->getValue() = value;
    endEditCP(parameter, Parameter::ValueFieldMask);
    return true;
}

#define OSG_UNIFORM_ACCESS_(Type, Value, Argument)                                                 \
    bool ShaderParameterChunk::setUniformParameter(const Char8* name, Argument value)              \
    {                                                                                              \
        return setParameter<ShaderParameter##Type>(name, value);                                   \
    }                                                                                              \
    bool ShaderParameterChunk::getUniformParameter(const Char8* name, Value& value) const          \
    {                                                                                              \
        return readParameter<ShaderParameter##Type>(findParameter(name), value);                   \
    }

OSG_UNIFORM_ACCESS_(Bool, bool, bool)
OSG_UNIFORM_ACCESS_(Int, Int32, Int32)
OSG_UNIFORM_ACCESS_(Real, Real32, Real32)
OSG_UNIFORM_ACCESS_(Vec2f, Vec2f, const Vec2f&)
OSG_UNIFORM_ACCESS_(Vec3f, Vec3f, const Vec3f&)
OSG_UNIFORM_ACCESS_(Vec4f, Vec4f, const Vec4f&)
OSG_UNIFORM_ACCESS_(Matrix, Matrix, const Matrix&)

template <class Value>
bool ShaderParameterChunk::setUniformParameter(const Char8* name, const MField<Value>& values)
{
    return setParameter<typename ArrayParameter<Value>::Type>(name, values);
}

template <class Value>
bool ShaderParameterChunk::getUniformParameter(const Char8* name, MField<Value>& values) const
{
    return readParameter<typename ArrayParameter<Value>::Type>(findParameter(name), values);
}

#define OSG_INSTANTIATE_ARRAYS_(Value)                                                             \
    template bool ShaderParameterChunk::setUniformParameter(const Char8*, const MField<Value>&);   \
    template bool ShaderParameterChunk::getUniformParameter(const Char8*, MField<Value>&) const

OSG_INSTANTIATE_ARRAYS_(Int32);
OSG_INSTANTIATE_ARRAYS_(Real32);
OSG_INSTANTIATE_ARRAYS_(Vec2f);
OSG_INSTANTIATE_ARRAYS_(Vec3f);
OSG_INSTANTIATE_ARRAYS_(Vec4f);
OSG_INSTANTIATE_ARRAYS_(Matrix);

bool ShaderParameterChunk::subUniformParameter(const Char8* name)
{
    const auto found = mfParameters.find(findParameter(name));
    if (found == mfParameters.end()) {
        return false;
    }
    const ShaderParameterChunkPtr self(*this);
    beginEditCP(self, ParametersFieldMask);
    mfParameters.erase(found);
    freeUnlisted();
    endEditCP(self, ParametersFieldMask);
    return true;
}

ShaderParameterPtr ShaderParameterChunk::findParameter(const Char8* name) const
{
    for (const ShaderParameterPtr& parameter : mfParameters) {
        if (name != nullptr && parameter != NullFC && parameter->getName() == name) {
            return parameter;
        }
    }
    return NullFC;
}

void ShaderParameterChunk::cloneReferences(ContainerCloner& cloner)
{
    Inherited::cloneReferences(cloner);
    std::vector<RefPtr<ShaderParameterPtr>> copies;
    for (ShaderParameterPtr& parameter : mfParameters) {
        parameter = cloner.copyOf(parameter);
        copies.emplace_back(parameter);
    }
    counted.swap(copies);
}

void ShaderParameterChunk::freeUnlisted()
{
    const auto unlisted = [this](const auto& parameter) {
        return mfParameters.find(parameter.get()) == mfParameters.end();
    };
    counted.erase(std::remove_if(counted.begin(), counted.end(), unlisted), counted.end());
}

}  // namespace osg
