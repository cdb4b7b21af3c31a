// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelFiles.h"

#include "viewer/texts/Text.h"

#include <QFileInfo>

namespace viewer {
namespace {

const QStringList kModelEndings { "obj", "ply", "stl", "gltf", "glb",
                                  "3ds", "dae", "fbx", "off",  "x3d" };
const QStringList kPictureEndings { "png", "jpg", "jpeg", "bmp", "gif", "ppm" };

bool endsWithOne(const QString& path, const QStringList& endings)
{
    return endings.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

}  // namespace

QString modelFileFilter(const QString& further)
{
    QStringList patterns;
    if (!further.isEmpty()) {
        patterns.append(further);
    }
    for (const QString& ending : kModelEndings + kPictureEndings) {
        patterns.append("*." + ending);
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
