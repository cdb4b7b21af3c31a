// SPDX-License-Identifier: MIT
#include "GlProgram.h"

#include <QtCore/QString>

#include <vector>

namespace nbrender {

namespace {

/// Logs have many lines and often a trailing zero; one is what a reader gets.
std::string firstLine(const std::vector<char>& log)
{
    const QString line = QString::fromUtf8(log.data()).trimmed().section('\n', 0, 0).trimmed();
    return line.isEmpty() ? "the driver gives no reason" : line.toStdString();
}

GLuint compile(Gl& gl, GLenum stage, const std::string& text, std::string& error)
{
    const GLuint shader = gl.glCreateShader(stage);
    const char* source = text.c_str();
    gl.glShaderSource(shader, 1, &source, nullptr);
    gl.glCompileShader(shader);
    GLint compiled = GL_FALSE;
    gl.glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (compiled == GL_TRUE) {
        return shader;
    }
    GLint length = 0;
    gl.glGetShaderiv(shader, GL_INFO_LOG_LENGTH, &length);
    std::vector<char> log(static_cast<std::size_t>(length) + 1, '\0');
    gl.glGetShaderInfoLog(shader, length, nullptr, log.data());
    error = firstLine(log);
    gl.glDeleteShader(shader);
    return 0;
}

}  // namespace

bool GlProgram::build(Gl& gl, const std::string& vertexText, const std::string& geometryText,
                      const std::string& fragmentText, std::string& error)
{
    destroy(gl);

    struct Stage
    {
        GLenum kind;
        const std::string& text;
    };

    const Stage stages[] = { { GL_VERTEX_SHADER, vertexText },
                             { GL_GEOMETRY_SHADER, geometryText },
                             { GL_FRAGMENT_SHADER, fragmentText } };
    const GLuint program = gl.glCreateProgram();
    const auto giveUp = [&gl, program] {
        gl.glDeleteProgram(program);
        return false;
    };
    for (const Stage& stage : stages) {
        if (stage.text.empty()) {
            continue;
        }
        const GLuint shader = compile(gl, stage.kind, stage.text, error);
        if (shader == 0) {
            return giveUp();
        }
        gl.glAttachShader(program, shader);
        gl.glDeleteShader(shader);  // lives as long as it is attached
    }
    GLuint location = 0;
    for (const char* const attribute : { "nbPosition", "nbNormal", "nbColor", "nbTexCoord" }) {
        gl.glBindAttribLocation(program, location++, attribute);
    }
    gl.glLinkProgram(program);
    GLint linked = GL_FALSE;
    gl.glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked != GL_TRUE) {
        GLint length = 0;
        gl.glGetProgramiv(program, GL_INFO_LOG_LENGTH, &length);
        std::vector<char> log(static_cast<std::size_t>(length) + 1, '\0');
        gl.glGetProgramInfoLog(program, length, nullptr, log.data());
        error = firstLine(log);
        return giveUp();
    }
    id = program;
    return true;
}

void GlProgram::destroy(Gl& gl)
{
    if (id != 0) {
        gl.glDeleteProgram(id);
    }
    id = 0;
    locations.clear();
}

GLint GlProgram::locate(Gl& gl, std::string_view name)
{
    const auto known = locations.find(name);
    if (known != locations.end()) {
        return known->second;
    }
    const std::string text(name);
    const GLint location = gl.glGetUniformLocation(id, text.c_str());
    locations.emplace(text, location);
    return location;
}

void GlProgram::set(Gl& gl, const char* name, const osg::Matrix& value)
{
    gl.glUniformMatrix4fv(locate(gl, name), 1, GL_FALSE, value.getValues());
}

void GlProgram::set(Gl& gl, const char* name, float value)
{
    gl.glUniform1f(locate(gl, name), value);
}

void GlProgram::set(Gl& gl, const char* name, GLint value)
{
    gl.glUniform1i(locate(gl, name), value);
}

void GlProgram::set(Gl& gl, const char* name, float x, float y)
{
    gl.glUniform2f(locate(gl, name), x, y);
}

void GlProgram::set(Gl& gl, const char* name, float x, float y, float z)
{
    gl.glUniform3f(locate(gl, name), x, y, z);
}

void GlProgram::set(Gl& gl, const char* name, float x, float y, float z, float w)
{
    gl.glUniform4f(locate(gl, name), x, y, z, w);
}

osg::Matrix normalMatrix(const osg::Matrix& matrix)
{
    osg::Matrix linear = matrix;
    linear.setTranslate(0.0F, 0.0F, 0.0F);
    osg::Matrix result;
    if (!linear.inverse(result)) {
        return linear;
    }
    result.transpose();
    return result;
}

}  // namespace nbrender
