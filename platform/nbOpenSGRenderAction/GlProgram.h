// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions_3_3_Core>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QOpenGLVersionFunctionsFactory>
#endif

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace nbrender {

using Gl = QOpenGLFunctions_3_3_Core;

/// The functions of a context, not initialised. @return null if the context does not have them
inline Gl* functionsOf(QOpenGLContext& context)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QOpenGLVersionFunctionsFactory::get<Gl>(&context);
#else
    return context.versionFunctions<Gl>();
#endif
}

/// A linked shader program. Vertex attributes have the places and names of shaderHeaderString(),
/// also where a text declares them without a place. Needs the context that it was built in for
/// everything but construction; who owns it calls destroy() there, or drops it when the context is
/// gone.
class GlProgram
{
public:
    /// Compiles and links; an empty geometry text leaves that stage out.
    /// @param error  receives the first line of what the driver says on failure
    /// @return false on failure; the program is then unusable and holds nothing
    bool build(Gl& gl, const std::string& vertexText, const std::string& geometryText,
               const std::string& fragmentText, std::string& error);

    bool isUsable() const { return id != 0; }

    void use(Gl& gl) const { gl.glUseProgram(id); }

    /// Gives the program back to the driver.
    void destroy(Gl& gl);

    // == Uniforms; the program must be in use, names that it does not have are ignored

    /// Location of a uniform, -1 if there is none; asked of the driver once per name.
    GLint locate(Gl& gl, std::string_view name);

    void set(Gl& gl, const char* name, const osg::Matrix& value);
    void set(Gl& gl, const char* name, float value);
    void set(Gl& gl, const char* name, GLint value);
    void set(Gl& gl, const char* name, float x, float y);
    void set(Gl& gl, const char* name, float x, float y, float z);
    void set(Gl& gl, const char* name, float x, float y, float z, float w);

private:
    GLuint id = 0;
    std::map<std::string, GLint, std::less<>> locations;
};

/// Transposed inverse of the 3x3: it keeps normals upright under uneven scales. A singular matrix
/// gives itself. Without the translation in either case.
osg::Matrix normalMatrix(const osg::Matrix& matrix);

}  // namespace nbrender
