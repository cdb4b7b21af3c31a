// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGShaderParameter.h>
#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace osg {

OSG_CONTAINER_POINTER(ShaderParameterChunk, StateChunkPtr);

/// The uniform variables of a shader, in the order in which they were first set. Names are 0-ended
/// text, at least one character. Setting and removing opens the edits that it needs.
class ShaderParameterChunk : public StateChunk
{
    OSG_TYPE_ACCESS_(ShaderParameterChunk, StateChunk);

public:
    enum
    {
        ParametersFieldId = Inherited::NextFieldId,
        NextFieldId
    };

    static constexpr BitVector ParametersFieldMask = BitVector(1) << ParametersFieldId;

    /// The variables. Clearing or shortening the list is allowed: what is gone from it is freed
    /// with the next call of a function below, or with the chunk.
    MFShaderParameterPtr* getMFParameters() { return &mfParameters; }

    const MFShaderParameterPtr* getMFParameters() const { return &mfParameters; }

    MFShaderParameterPtr& getParameters() { return mfParameters; }

    const MFShaderParameterPtr& getParameters() const { return mfParameters; }

    ShaderParameterPtr& getParameters(UInt32 index) { return mfParameters[index]; }

    const ShaderParameterPtr& getParameters(UInt32 index) const { return mfParameters[index]; }

    /// Sets a variable, or appends it. A variable that is there keeps its place.
    /// @return false, with nothing changed, if it is there with another type or the name is empty
    bool setUniformParameter(const Char8* name, bool value);
    bool setUniformParameter(const Char8* name, Int32 value);
    bool setUniformParameter(const Char8* name, Real32 value);
    bool setUniformParameter(const Char8* name, const Vec2f& value);
    bool setUniformParameter(const Char8* name, const Vec3f& value);
    bool setUniformParameter(const Char8* name, const Vec4f& value);
    bool setUniformParameter(const Char8* name, const Matrix& value);

    /// Sets an array, whose values are of one of the types above.
    template <class Value>
    bool setUniformParameter(const Char8* name, const MField<Value>& values);

    /// Reads a variable. @return false, with the value untouched, if there is none of name and type
    bool getUniformParameter(const Char8* name, bool& value) const;
    bool getUniformParameter(const Char8* name, Int32& value) const;
    bool getUniformParameter(const Char8* name, Real32& value) const;
    bool getUniformParameter(const Char8* name, Vec2f& value) const;
    bool getUniformParameter(const Char8* name, Vec3f& value) const;
    bool getUniformParameter(const Char8* name, Vec4f& value) const;
    bool getUniformParameter(const Char8* name, Matrix& value) const;

    template <class Value>
    bool getUniformParameter(const Char8* name, MField<Value>& values) const;

    /// Removes a variable. @return false if there is none of the name
    bool subUniformParameter(const Char8* name);

    /// The variable of a name; null if there is none.
    ShaderParameterPtr findParameter(const Char8* name) const;

    void cloneReferences(ContainerCloner& cloner) override;

protected:
    ShaderParameterChunk() = default;
    ShaderParameterChunk(const ShaderParameterChunk& source);
    ~ShaderParameterChunk() override = default;

private:
    template <class Parameter, class Value>
    bool setParameter(const Char8* name, const Value& value);

    void freeUnlisted();

    MFShaderParameterPtr mfParameters;
    // What the chunk counts. Apart from the list, because clearing the list directly is the way of
    // OpenSG to remove all variables and must not leave them behind for ever.
    std::vector<RefPtr<ShaderParameterPtr>> counted;
};

}  // namespace osg
