// SPDX-License-Identifier: MIT
#include "UberMaterialState.h"

#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGExt/nbRotationMath.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <cmath>

namespace nbrender {

namespace {

constexpr std::size_t kMatrixSize = 16;

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

using Settings = osg::ColorComponentSettings;

constexpr float kRadiansPerDegree = 0.017453293F;

/// A matrix of the first three columns and the last one.
osg::Matrix matrixOf(const osg::Vec3f& x, const osg::Vec3f& y, const osg::Vec3f& z,
                     const osg::Vec3f& origin)
{
    osg::Matrix matrix;
    const std::array<osg::Vec3f, 4> columns { x, y, z, origin };
    for (osg::UInt32 i = 0; i < columns.size(); ++i) {
        for (osg::UInt32 k = 0; k < 3; ++k) {
            matrix[i][k] = columns[i][k];
        }
    }
    return matrix;
}

/// Whether a tile is neither without end nor without size.
bool isTile(const osg::Vec4f& tile)
{
    return std::isnormal(tile.x()) && std::isnormal(tile.y()) && std::isfinite(tile.z()) &&
        std::isfinite(tile.w());
}

// Each of these is false if the projection has no inverse or is not finite.

bool resolvePlanar(const osg::ColorComponentSettingsPtr& settings, ProjectedPicture& picture)
{
    const osg::Transform3DPtr projection = settings->getShownProjection();
    if (projection == osg::NullFC || !projection->getMatrix().inverse(picture.pictureFromSurface)) {
        return false;
    }
    picture.repeatU = settings->hasPlanarProjectionFlag(Settings::RepeatU);
    picture.repeatV = settings->hasPlanarProjectionFlag(Settings::RepeatV);
    picture.clampZ = settings->hasPlanarProjectionFlag(Settings::ClampZ);
    const osg::Vec2f angles = settings->getPlanarAngles() * kRadiansPerDegree;
    picture.tiles.front() = osg::Vec4f(angles.x(), angles.y(), 0.0F, 0.0F);
    return nbIsFinite(angles);
}

/// Offsets of the projections along x, y and z as vectors of the object's axes. Across its plane,
/// where a projection has no offset of its own, it takes the mean of the two others': once it is
/// turned, that counts, and what shifts them shifts it along.
std::array<osg::Vec3f, 3> triplanarOffsets(const osg::Vec3f& u, const osg::Vec3f& v)
{
    constexpr float kHalf = 0.5F;
    return { osg::Vec3f(kHalf * (u[1] + u[2]), u[0], v[0]),
             osg::Vec3f(u[1], kHalf * (u[0] + v[2]), v[1]),
             osg::Vec3f(u[2], v[2], kHalf * (v[0] + v[1])) };
}

bool resolveTriplanar(const osg::ColorComponentSettingsPtr& settings, ProjectedPicture& picture)
{
    constexpr float kHundredth = 0.01F;
    const osg::Vec3f& rotation = settings->getTriplanarRotation();
    if (!nbIsFinite(rotation)) {
        return false;
    }
    // Deliberate: the angle about y runs the other way round.
    const nbRotationMath::Rows turn = nbRotationMath::rotationRows(
        nbEulerRotation::toQuaternion({ rotation.x(), -double(rotation.y()), rotation.z() },
                                      nbEulerRotation::getOrderNumber("xyz")));
    const auto row = [&turn](std::size_t i) {
        return osg::Vec3f(static_cast<float>(turn[i][0]), static_cast<float>(turn[i][1]),
                          static_cast<float>(turn[i][2])) *
            kHundredth;
    };
    // The inverse of a turn has its rows as columns.
    picture.pictureFromSurface = matrixOf(row(0), row(1), row(2), osg::Vec3f(0.0F, 0.0F, 0.0F));
    const std::array<osg::Vec3f, 3> offsets =
        triplanarOffsets(settings->getTriplanarOffsetU(), settings->getTriplanarOffsetV());
    for (osg::UInt32 i = 0; i < ProjectedPicture::kTileCount; ++i) {
        const float repeatU = settings->getTriplanarRepeatU()[i];
        const float repeatV = settings->getTriplanarRepeatV()[i];
        const osg::Vec3f inFrame =
            row(0) * offsets[i][0] + row(1) * offsets[i][1] + row(2) * offsets[i][2];
        const osg::UInt32 u = i == 0 ? 1 : 0;
        const osg::UInt32 v = i == 2 ? 1 : 2;
        picture.tiles[i] = osg::Vec4f(repeatU, repeatV, inFrame[u] / kHundredth * repeatU,
                                      inFrame[v] / kHundredth * repeatV);
    }
    return std::all_of(picture.tiles.begin(), picture.tiles.end(), isTile);
}

bool resolveUv(const osg::ColorComponentSettingsPtr& settings, ProjectedPicture& picture)
{
    constexpr float kHalf = 0.5F;
    const osg::Vec2f& offset = settings->getOffset();
    const osg::Vec2f& repeat = settings->getRepeat();
    const double angle = double(settings->getRotate()) * kRadiansPerDegree;
    const auto cosine = static_cast<float>(std::cos(angle));
    const auto sine = static_cast<float>(std::sin(angle));
    // A picture that turns clockwise is looked up counter-clockwise.
    const osg::Vec3f u(cosine * repeat.x(), sine * repeat.y(), 0.0F);
    const osg::Vec3f v(-sine * repeat.x(), cosine * repeat.y(), 0.0F);
    const osg::Vec3f middle(kHalf * repeat.x(), kHalf * repeat.y(), 0.0F);
    picture.pictureFromSurface =
        matrixOf(u, v, osg::Vec3f(0.0F, 0.0F, 1.0F),
                 middle - u * (offset.x() + kHalf) - v * (offset.y() + kHalf));
    return std::isnormal(repeat.x()) && std::isnormal(repeat.y());
}

bool resolveTire(const osg::ColorComponentSettingsPtr& settings, ProjectedPicture& picture)
{
    constexpr float kHalf = 0.5F;
    const osg::Vec3f& center = settings->getTireCenter();
    const float alongScale = 1.0F / settings->getTireScaleHeight();
    const float acrossScale = 1.0F / settings->getTireScaleRadius();
    picture.pictureFromSurface = matrixOf(
        { alongScale, 0.0F, 0.0F }, { 0.0F, acrossScale, 0.0F }, { 0.0F, 0.0F, acrossScale },
        { -center.x() * alongScale, -center.y() * acrossScale, -center.z() * acrossScale });
    picture.tiles.front() = osg::Vec4f(1.0F / settings->getTireScaleU(), 1.0F, kHalf, kHalf);
    return std::isnormal(alongScale) && std::isnormal(acrossScale) && isTile(picture.tiles.front());
}

bool resolvePlacing(const osg::ColorComponentSettingsPtr& settings, ProjectedPicture& picture)
{
    switch (picture.kind) {
    case Settings::UVProjection:
        return resolveUv(settings, picture);
    case Settings::PlanarProjection:
        return resolvePlanar(settings, picture);
    case Settings::TriplanarProjection:
        return resolveTriplanar(settings, picture);
    case Settings::TireProjection:
        return resolveTire(settings, picture);
    default:
        return false;
    }
}

ProjectedPicture resolvePicture(const osg::UberMaterialPtr& material, const char* name,
                                UberMaterialState::Component component)
{
    const osg::ImagePtr image = material->getImage(name);
    const osg::ColorComponentSettingsPtr settings = material->getComponentSettings(name);
    if (!isUseful(image, settings, component)) {
        return ProjectedPicture();
    }
    ProjectedPicture picture;
    picture.kind = settings->getTextureProjectionType();
    picture.repeatU = picture.repeatV = true;
    picture.asMask = settings->getAsMask();
    picture.invert = settings->getInvert();
    if (!resolvePlacing(settings, picture) || !nbIsFinite(picture.pictureFromSurface)) {
        return ProjectedPicture();
    }
    picture.imageId = image.getFieldContainerId();
    return picture;
}

void addTo(osg::ContentStamp& stamp, const ProjectedPicture& picture)
{
    stamp.add(osg::FieldContainerFactory::the()->getContainer(picture.imageId));
    stamp.add(static_cast<osg::UInt64>(picture.kind));
    stamp.add(picture.pictureFromSurface.getValues(), kMatrixSize);
    for (const osg::Vec4f& tile : picture.tiles) {
        stamp.add(tile.getValues(), 4);
    }
    for (const bool flag :
         { picture.repeatU, picture.repeatV, picture.clampZ, picture.asMask, picture.invert }) {
        stamp.add(osg::UInt64(flag ? 1 : 0));
    }
}

}  // namespace

void addTo(osg::ContentStamp& stamp, const UberMaterialState& state)
{
    for (const ProjectedPicture& picture : state.pictures) {
        addTo(stamp, picture);
    }
    stamp.add(osg::UInt64(state.hasCutouts ? 1 : 0));
}

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
