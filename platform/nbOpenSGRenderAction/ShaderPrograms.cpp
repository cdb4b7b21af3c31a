// SPDX-License-Identifier: MIT
#include "ShaderPrograms.h"

#include <nbOpenSGRenderAction/StandardShaders.h>
#include <nbOpenSGUtils/nbDropDead.h>
#include <nbOpenSGUtils/nbShaderHeader.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGShaderParameterBool.h>
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

namespace nbrender {

namespace {

std::string orDefault(const std::string& text, const std::string& standard)
{
    return text.empty() ? standard : text;
}

/// Hands a parameter's value, or its values if it is an array, to setter(count, values), if it is
/// of one of the two classes that the pointer types name.
template <class SinglePtr, class ArrayPtr, class Setter>
bool setAs(const osg::ShaderParameterPtr& parameter, const Setter& setter)
{
    if (const auto single = SinglePtr::dcast(parameter); single != osg::NullFC) {
        const auto& value = single->getValue();
        setter(1, &value);
        return true;
    }
    const auto array = ArrayPtr::dcast(parameter);
    if (array != osg::NullFC && !array->getValue().empty()) {
        setter(static_cast<GLsizei>(array->getValue().size()), &array->getValue()[0]);
    }
    return array != osg::NullFC;
}

void setValue(Gl& gl, const osg::ShaderParameterPtr& parameter, GLint location)
{
    using namespace osg;  // NOLINT: the long list of classes below
    if (const auto flag = ShaderParameterBoolPtr::dcast(parameter); flag != NullFC) {
        gl.glUniform1i(location, flag->getValue() ? 1 : 0);
        return;
    }
    setAs<ShaderParameterVec4fPtr, ShaderParameterMVec4fPtr>(
        parameter,
        [&](GLsizei count, const Vec4f* v) { gl.glUniform4fv(location, count, v->getValues()); }) ||
        setAs<ShaderParameterMatrixPtr, ShaderParameterMMatrixPtr>(
            parameter,
            [&](GLsizei count, const Matrix* m) {
                gl.glUniformMatrix4fv(location, count, GL_FALSE, m->getValues());
            }) ||
        setAs<ShaderParameterRealPtr, ShaderParameterMRealPtr>(
            parameter,
            [&](GLsizei count, const Real32* v) { gl.glUniform1fv(location, count, v); }) ||
        setAs<ShaderParameterIntPtr, ShaderParameterMIntPtr>(
            parameter,
            [&](GLsizei count, const Int32* v) { gl.glUniform1iv(location, count, v); }) ||
        setAs<ShaderParameterVec3fPtr, ShaderParameterMVec3fPtr>(
            parameter,
            [&](GLsizei count, const Vec3f* v) {
                gl.glUniform3fv(location, count, v->getValues());
            }) ||
        setAs<ShaderParameterVec2fPtr, ShaderParameterMVec2fPtr>(
            parameter, [&](GLsizei count, const Vec2f* v) {
                gl.glUniform2fv(location, count, v->getValues());
            });
}

}  // namespace

GlProgram* ShaderPrograms::use(Gl& gl, const char* name, const char* vertexBody,
                               const char* fragmentBody)
{
    const auto [known, isNew] = own.try_emplace(name);
    GlProgram& program = known->second;
    const auto header = [](nbShaderStage stage) {
        return shaderHeaderString(stage, false, false, false);
    };
    std::string error;
    if (isNew &&
        !program.build(gl, header(nbShaderStage::Vertex) + vertexBody, std::string(),
                       header(nbShaderStage::Fragment) + fragmentBody, error)) {
        nbLog::error(std::string("the program for ") + name +
                     " does not compile on this driver: " + error);
    }
    if (!program.isUsable()) {
        return nullptr;
    }
    program.use(gl);
    return &program;
}

GlProgram* ShaderPrograms::getMaterialProgram(Gl& gl, Shape shape, shaders::Clipping clipping,
                                              const shaders::Features& features)
{
    const auto kindIndex = [](int kind) {
        return static_cast<std::size_t>(kind - shaders::kNoPicture);
    };
    const std::size_t index = kPlainPrograms *
            (kPictureKinds * kindIndex(features.pictures[1]) + kindIndex(features.pictures[0])) +
        (clipping == shaders::Clipping::On ? 16U : 0U) + (shape == Shape::Line ? 8U : 0U) +
        (features.lit ? 4U : 0U) + (features.textured ? 2U : 0U) + (features.discards ? 1U : 0U);
    if (material[index] == nullptr) {
        material[index] = std::make_unique<GlProgram>();
        std::string error;
        const std::string vertex = shape == Shape::Line
            ? shaders::lineVertex(clipping)
            : shaders::surfaceVertex(clipping, shaders::hasPicture(features.pictures));
        if (!material[index]->build(gl, vertex, std::string(), shaders::surfaceFragment(features),
                                    error)) {
            nbLog::error("a program for materials does not compile on this driver: " + error);
        }
    }
    return material[index]->isUsable() ? material[index].get() : nullptr;
}

GlProgram* ShaderPrograms::use(Gl& gl, const osg::SHLChunkPtr& chunk, bool lines)
{
    Entry& entry = entries[chunk.getFieldContainerId()];
    constexpr char kSeparator = '\1';
    const std::string text = chunk->getVertexProgram() + kSeparator + chunk->getGeometryProgram() +
        kSeparator + chunk->getFragmentProgram();
    if (entry.text != text) {
        entry.surface.destroy(gl);
        entry.line.destroy(gl);
        entry.text = text;
        build(gl, chunk, entry);
    }
    GlProgram& program = lines && entry.line.isUsable() ? entry.line : entry.surface;
    if (!program.isUsable()) {
        return nullptr;
    }
    program.use(gl);
    for (const osg::ShaderParameterPtr& parameter : chunk->getParameters()) {
        if (parameter != osg::NullFC) {
            setValue(gl, parameter, program.locate(gl, parameter->getName()));
        }
    }
    return &program;
}

void ShaderPrograms::build(Gl& gl, const osg::SHLChunkPtr& chunk, Entry& entry)
{
    const std::string vertex = orDefault(chunk->getVertexProgram(), shaders::surfaceVertex());
    const std::string fragment =
        orDefault(chunk->getFragmentProgram(), shaders::surfaceFragment(shaders::Features()));
    const std::string& geometry = chunk->getGeometryProgram();
    std::string error;
    if (!entry.surface.build(gl, vertex, geometry, fragment, error)) {
        nbLog::error("shader chunk " + std::to_string(chunk.getFieldContainerId()) +
                     " does not compile and is drawn in plain colour: " + error);
        return;
    }
    if (geometry.empty()) {
        // A program that passes more than positions between its stages does not link with this; its
        // lines are then drawn as thin as the driver draws them.
        entry.line.build(gl, vertex, shaders::lineGeometry(), fragment, error);
    }
}

void ShaderPrograms::collect(Gl& gl)
{
    nbDropDead(entries, [&gl](Entry& entry) {
        entry.surface.destroy(gl);
        entry.line.destroy(gl);
    });
}

void ShaderPrograms::release(Gl& gl)
{
    for (auto& [id, entry] : entries) {
        entry.surface.destroy(gl);
        entry.line.destroy(gl);
    }
    for (auto& [name, program] : own) {
        program.destroy(gl);
    }
    for (const std::unique_ptr<GlProgram>& program : material) {
        if (program != nullptr) {
            program->destroy(gl);
        }
    }
    forget();
}

void ShaderPrograms::forget()
{
    *this = ShaderPrograms();
}

}  // namespace nbrender
