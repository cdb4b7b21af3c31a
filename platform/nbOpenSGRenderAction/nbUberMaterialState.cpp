// SPDX-License-Identifier: MIT
#include "nbUberMaterialState.h"

#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <algorithm>
#include <cmath>

namespace nbrender {

namespace {

constexpr std::size_t kMatrixSize = 16;

bool isFinite(const osg::Matrix& matrix)
{
    const float* const values = matrix.getValues();
    return std::all_of(values, values + kMatrixSize, [](float v) { return std::isfinite(v); });
}

/// Whether the picture says anything about the component: a colour needs colours, a transparency
/// needs something to cover with.
bool isUseful(const osg::ImagePtr& image, const osg::ColorComponentSettingsPtr& settings,
              UberMaterialState::Component component)
{
    if (image == osg::NullFC || settings == osg::NullFC || !image->isValid()) {
        return false;
    }
    const bool hasColor = image->getPixelFormat() != osg::Image::OSG_A_PF;
    return component == UberMaterialState::Diffuse
        ? hasColor
        : settings->getAsMask() || image->hasAlphaChannel();
}

ProjectedPicture resolvePicture(const osg::UberMaterialPtr& material, const char* name,
                                UberMaterialState::Component component)
{
    using Settings = osg::ColorComponentSettings;
    ProjectedPicture picture;
    const osg::ImagePtr image = material->getImage(name);
    const osg::ColorComponentSettingsPtr settings = material->getComponentSettings(name);
    if (!isUseful(image, settings, component) ||
        settings->getTextureProjectionType() != Settings::PlanarProjection ||
        settings->getPlanarProjection() == osg::NullFC ||
        !settings->getPlanarProjection()->getMatrix().inverse(picture.pictureFromSurface) ||
        !isFinite(picture.pictureFromSurface)) {
        return picture;
    }
    picture.imageId = image.getFieldContainerId();
    picture.repeatU = settings->hasPlanarProjectionFlag(Settings::RepeatU);
    picture.repeatV = settings->hasPlanarProjectionFlag(Settings::RepeatV);
    picture.clampZ = settings->hasPlanarProjectionFlag(Settings::ClampZ);
    picture.asMask = settings->getAsMask();
    picture.invert = settings->getInvert();
    return picture;
}

}  // namespace

std::shared_ptr<const UberMaterialState> resolveUberMaterial(const osg::MaterialPtr& material)
{
    const auto uber = osg::UberMaterialPtr::dcast(material);
    if (uber == osg::NullFC) {
        return nullptr;
    }
    auto state = std::make_shared<UberMaterialState>();
    ProjectedPicture& diffuse = state->pictures[UberMaterialState::Diffuse];
    ProjectedPicture& transparency = state->pictures[UberMaterialState::Transparency];
    diffuse =
        resolvePicture(uber, osg::UberMaterial::kDiffuseComponent, UberMaterialState::Diffuse);
    transparency = resolvePicture(uber, osg::UberMaterial::kTransparencyComponent,
                                  UberMaterialState::Transparency);
    if (diffuse.imageId == 0 && transparency.imageId == 0) {
        return nullptr;
    }
    state->hasCutouts = transparency.imageId != 0 && uber->getTransparency() <= osg::Eps;
    return state;
}

}  // namespace nbrender
