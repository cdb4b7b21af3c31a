// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMatrixCamera.h>
#include <OpenSG/OSGOrthographicCamera.h>
#include <OpenSG/OSGPassiveWindow.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGShaderParameterBool.h>
#include <OpenSG/OSGShaderParameterInt.h>
#include <OpenSG/OSGShaderParameterMatrix.h>
#include <OpenSG/OSGShaderParameterReal.h>
#include <OpenSG/OSGShaderParameterVec2f.h>
#include <OpenSG/OSGShaderParameterVec3f.h>
#include <OpenSG/OSGShaderParameterVec4f.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSolidBackground.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGViewport.h>

#include "OSGBuiltinTypes.h"

namespace osg {

void referenceMaterialTypes()
{
    referenceTypes({
        &BlendChunk::getClassType(),
        &ChunkMaterial::getClassType(),
        &DepthChunk::getClassType(),
        &Image::getClassType(),
        &LineChunk::getClassType(),
        &MaterialChunk::getClassType(),
        &MaterialGroup::getClassType(),
        &MatrixCamera::getClassType(),
        &OrthographicCamera::getClassType(),
        &PassiveWindow::getClassType(),
        &PerspectiveCamera::getClassType(),
        &PolygonChunk::getClassType(),
        &SHLChunk::getClassType(),
        &ShaderParameterBool::getClassType(),
        &ShaderParameterInt::getClassType(),
        &ShaderParameterMatrix::getClassType(),
        &ShaderParameterReal::getClassType(),
        &ShaderParameterVec2f::getClassType(),
        &ShaderParameterVec3f::getClassType(),
        &ShaderParameterVec4f::getClassType(),
        &SimpleMaterial::getClassType(),
        &SimpleTexturedMaterial::getClassType(),
        &SolidBackground::getClassType(),
        &TextureChunk::getClassType(),
        &Viewport::getClassType(),
    });
}

}  // namespace osg
