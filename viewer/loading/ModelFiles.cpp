// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelFiles.h"

#include "viewer/texts/Text.h"

#include <QFileInfo>

namespace viewer {
namespace {

const char* const kModelEndings[] = { "obj", "ply", "stl", "gltf", "glb",
                                      "3ds", "dae", "fbx", "off",  "x3d" };
const char* const kPictureEndings[] = { "png", "jpg", "jpeg", "bmp", "gif", "ppm" };

template <std::size_t Count>
bool endsWithOne(const QString& path, const char* const (&endings)[Count])
{
    const QString ending = QFileInfo(path).suffix().toLower();
    return std::any_of(endings, endings + Count,
                       [&ending](const char* known) { return ending == QLatin1String(known); });
}

}  // namespace

QString modelFileFilter(const QString& further)
{
    QStringList patterns;
    if (!further.isEmpty()) {
        patterns.append(further);
    }
    for (const char* ending : kModelEndings) {
        patterns.append(QStringLiteral("*.") + QLatin1String(ending));
    }
    for (const char* ending : kPictureEndings) {
        patterns.append(QStringLiteral("*.") + QLatin1String(ending));
    }
    return Text::tr("Models, scenes and pictures (%1);;All files (*)").arg(patterns.join(' '));
}

bool isPictureFileName(const QString& path)
{
    return endsWithOne(path, kPictureEndings);
}

bool isModelFileName(const QString& path)
{
    return endsWithOne(path, kModelEndings) || isPictureFileName(path);
}

}  // namespace viewer
