// SPDX-License-Identifier: MIT
#include "ShaderPrograms.h"

#include <nbOpenSGRenderAction/StandardShaders.h>
#include <nbOpenSGUtils/nbShaderHeader.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGFieldContainerFactory.h>
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

/// Sets one parameter if it is of the class that the pointer type names.
template <class ParameterPtr, class Setter>
bool setAs(const osg::ShaderParameterPtr& parameter, const Setter& setter)
{
    const ParameterPtr typed = ParameterPtr::dcast(parameter);
    if (typed == osg::NullFC) {
        return false;
    }
    setter(typed->getValue());
    return true;
}

bool setValue(Gl& gl, const osg::ShaderParameterPtr& parameter, GLint location)
{
    using namespace osg;  // NOLINT: the long list of classes below
    return setAs<ShaderParameterVec4fPtr>(
               parameter,
               [&](const Vec4f& v) { gl.glUniform4f(location, v.x(), v.y(), v.z(), v.w()); }) ||
        setAs<ShaderParameterMatrixPtr>(parameter,
                                        [&](const Matrix& m) {
                                            gl.glUniformMatrix4fv(location, 1, GL_FALSE,
                                                                  m.getValues());
                                        }) ||
        setAs<ShaderParameterRealPtr>(parameter, [&](Real32 v) { gl.glUniform1f(location, v); }) ||
        setAs<ShaderParameterIntPtr>(parameter, [&](Int32 v) { gl.glUniform1i(location, v); }) ||
        setAs<ShaderParameterBoolPtr>(parameter,
                                      [&](bool v) { gl.glUniform1i(location, v ? 1 : 0); }) ||
        setAs<ShaderParameterVec3fPtr>(
               parameter, [&](const Vec3f& v) { gl.glUniform3f(location, v.x(), v.y(), v.z()); }) ||
        setAs<ShaderParameterVec2fPtr>(
               parameter, [&](const Vec2f& v) { gl.glUniform2f(location, v.x(), v.y()); });
}

/// The numbers of an array of numbers, vectors or matrices, one after the other.
template <class Value>
const GLfloat* numbersOf(const osg::MField<Value>& values)
{
    static_assert(sizeof(Value) % sizeof(GLfloat) == 0);
    return values.empty() ? nullptr : reinterpret_cast<const GLfloat*>(&values[0]);
}

void setArray(Gl& gl, const osg::ShaderParameterPtr& parameter, GLint location)
{
    using namespace osg;  // NOLINT: the long list of classes below
    const auto count = [](const auto& v) { return static_cast<GLsizei>(v.size()); };
    setAs<ShaderParameterMVec4fPtr>(
        parameter, [&](const MFVec4f& v) { gl.glUniform4fv(location, count(v), numbersOf(v)); }) ||
        setAs<ShaderParameterMMatrixPtr>(parameter,
                                         [&](const MFMatrix& v) {
                                             gl.glUniformMatrix4fv(location, count(v), GL_FALSE,
                                                                   numbersOf(v));
                                         }) ||
        setAs<ShaderParameterMRealPtr>(
            parameter,
            [&](const MFReal32& v) { gl.glUniform1fv(location, count(v), numbersOf(v)); }) ||
        setAs<ShaderParameterMIntPtr>(parameter,
                                      [&](const MFInt32& v) {
                                          gl.glUniform1iv(location, count(v),
                                                          v.empty() ? nullptr : &v[0]);
                                      }) ||
        setAs<ShaderParameterMVec3fPtr>(
            parameter,
            [&](const MFVec3f& v) { gl.glUniform3fv(location, count(v), numbersOf(v)); }) ||
        setAs<ShaderParameterMVec2fPtr>(parameter, [&](const MFVec2f& v) {
            gl.glUniform2fv(location, count(v), numbersOf(v));
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
    setParameters(gl, chunk, program);
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

void ShaderPrograms::setParameters(Gl& gl, const osg::SHLChunkPtr& chunk, GlProgram& program)
{
    for (const osg::ShaderParameterPtr& parameter : chunk->getParameters()) {
        if (parameter != osg::NullFC) {
            const GLint location = program.locate(gl, parameter->getName());
            if (!setValue(gl, parameter, location)) {
                setArray(gl, parameter, location);
            }
        }
    }
}

void ShaderPrograms::collect(Gl& gl)
{
    for (auto it = entries.begin(); it != entries.end();) {
        if (osg::FieldContainerFactory::the()->getContainer(it->first) == osg::NullFC) {
            it->second.surface.destroy(gl);
            it->second.line.destroy(gl);
            it = entries.erase(it);
        } else {
            ++it;
        }
    }
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
