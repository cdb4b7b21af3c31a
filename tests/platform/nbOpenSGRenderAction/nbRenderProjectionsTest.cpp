// SPDX-License-Identifier: MIT
#include "tests/platform/support/PictureTest.h"

#include <nbOpenSGExt/nbContainerId.h>

#include <string>
#include <utility>

using namespace rendertest;

namespace {

using Settings = osg::ColorComponentSettings;

constexpr float kPi = 3.14159265f;

/// A square wall or a box with a projection of a kind.
class nbRenderProjectionsTest : public RenderTest
{
protected:
    template <class Set>
    void edit(const Set& set)
    {
        const nbEdit edit(picture.settings, osg::FieldBits::AllFields);
        set(*picture.settings.get());
    }

    void setKind(Settings::TextureProjection kind)
    {
        picture.setPicture(colorQuarters());
        edit([kind](Settings& s) { s.setTextureProjectionType(kind); });
    }

    /// All three pictures this many units wide and high.
    void setTriplanarSize(float units)
    {
        const float repeat = 100.f / units;
        edit([repeat](Settings& s) {
            s.setTriplanarRepeatU(osg::Vec3f(repeat, repeat, repeat));
            s.setTriplanarRepeatV(osg::Vec3f(repeat, repeat, repeat));
        });
    }

    /// Each projection shows the middle of one quarter only: that along x red, y green, z blue. The
    /// frame may be turned about an axis of the object.
    void setOneColorPerAxis(const osg::Vec3f& rotation = {},
                            const osg::Vec3f& axis = { 1.f, 0.f, 0.f }, float angle = 0.f)
    {
        osg::Vec3f offset(0.25f, 0.25f, 0.25f);  // in the frame
        osg::Quaternion(axis, angle).multVec(offset, offset);
        edit([&](Settings& s) {
            s.setTriplanarRotation(rotation);
            s.setTriplanarOffsetU(osg::Vec3f(offset.y(), offset.x(), offset.x()));
            s.setTriplanarOffsetV(osg::Vec3f(offset.z(), offset.z(), offset.y()));
            s.setTriplanarRepeatU(osg::Vec3f(1.f, 3.f, 1.f));
            s.setTriplanarRepeatV(osg::Vec3f(1.f, 1.f, 3.f));
        });
    }

    osg::NodePtr wall() const { return square(4.f, picture.material.get()); }

    osg::NodePtr box(float size) const
    {
        return colored(osg::makeBox(size, size, size, 1, 1, 1), picture.material.get());
    }

    /// A cylinder along the x axis.
    osg::NodePtr wheel(float width, float radius) const
    {
        const osg::NodePtr cylinder =
            colored(osg::makeCylinder(width, radius, 64, true, true, true), picture.material.get());
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(cylinder->getCore());
        nbtest::changePoints(cylinder,
                             [](const osg::Pnt3f& p) { return osg::Pnt3f(p.y(), p.z(), p.x()); });
        for (osg::UInt32 i = 0; i < geometry->getNormals()->getSize(); ++i) {
            const osg::Vec3f n = geometry->getNormals()->getValue(i);
            geometry->getNormals()->setValue(osg::Vec3f(n.y(), n.z(), n.x()), i);
        }
        return cylinder;
    }

    PictureMaterial picture;
};

}  // namespace

// == Planar

TEST_F(nbRenderProjectionsTest, PlanarPictureFadesOnFacesThatTurnAway)
{
    const QColor halfWhite(177, 177, 177);
    picture.setPicture(quarters(kWhite, kWhite, kWhite, kWhite));
    draw(transformed(box(2.f), {}, osg::Vec3f(0.f, 0.f, 0.f), osg::Vec3f(-1.f, 1.f, 2.f)));
    // On the front of the mirrored, stretched box it comes from the side at 45 degrees.
    picture.place({}, osg::Vec3f(9.f, 9.f, 9.f), osg::Vec3f(0.f, 63.434949f, 0.f));
    const std::pair<osg::Vec2f, QColor> rows[] = {
        { { 180.f, 0.f }, kWhite }, { { 46.f, 0.f }, kWhite }, { { 40.f, 9.9f }, halfWhite },
        { { 44.f, 0.f }, kGrey },   { { 90.f, 0.f }, kWhite },
    };
    for (const auto& [angles, shown] : rows) {
        edit([wanted = angles](Settings& s) { s.setPlanarAngles(wanted); });
        expectColors(redraw(), { { 0.f, 0.f, shown } }, std::to_string(angles.x()).c_str());
    }
    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    expectColors(redraw(), { { 0.f, 0.f, kGrey } }, "back");
    const osg::RefPtr<osg::Transform3DPtr> placing(osg::Transform3D::create());
    nbtest::edited(placing)->setRotation(osg::Vec3f(0.f, 180.f, 0.f));
    edit([&](Settings& s) { s.setPlacingId(containerId(placing.get())); });
    expectColors(redraw(), { { 0.f, 0.f, kWhite } }, "another place while one is looked for");
}

// == Triplanar

TEST_F(nbRenderProjectionsTest, TriplanarPictureMovesAgainstTheOffsetAndTurnsWithTheRotation)
{
    setKind(Settings::TriplanarProjection);
    setTriplanarSize(2.f);
    const osg::NodePtr root = wall();

    expectColors(draw(root),
                 { { 0.5f, 0.5f, kRed },
                   { 1.5f, 0.5f, kGreen },
                   { 0.5f, 1.5f, kBlue },
                   { 1.5f, 1.5f, kYellow },
                   { -0.5f, -0.5f, kYellow } },
                 "from the object's origin on, and repeated");
    // Half a unit to the left and a quarter up; the other axes' offsets mean nothing here.
    edit([](Settings& s) {
        s.setTriplanarOffsetU(osg::Vec3f(0.3f, 0.4f, 0.005f));
        s.setTriplanarOffsetV(osg::Vec3f(0.3f, 0.4f, -0.0025f));
    });
    expectColors(redraw(),
                 { { -0.45f, 0.3f, kRed },
                   { 0.45f, 1.2f, kRed },
                   { 0.55f, 0.3f, kGreen },
                   { -0.45f, 1.3f, kBlue },
                   { -0.45f, 0.2f, kBlue } },
                 "offset");
    edit([](Settings& s) {
        s.setTriplanarOffsetU(osg::Vec3f(0.f, 0.f, 0.f));
        s.setTriplanarOffsetV(osg::Vec3f(0.f, 0.f, 0.f));
        s.setTriplanarRepeatU(osg::Vec3f(0.f, 1.f, 25.f));
    });
    expectColors(redraw(), { { 0.5f, 0.5f, kGrey } }, "a repeat of nothing along another axis");
    edit([](Settings& s) { s.setTriplanarRepeatU(osg::Vec3f(1.f, 1.f, 25.f)); });
    expectColors(redraw(), { { 1.9f, 0.5f, kRed }, { -0.1f, 0.5f, kGreen } }, "twice as wide");
    setTriplanarSize(2.f);
    edit([](Settings& s) { s.setTriplanarRotation(osg::Vec3f(0.f, 0.f, 0.5f * kPi)); });
    expectColors(redraw(),
                 { { -0.5f, 0.5f, kRed }, { -0.5f, 1.5f, kGreen }, { -1.5f, 0.5f, kBlue } },
                 "counter-clockwise about z");
}

TEST_F(nbRenderProjectionsTest, TriplanarProjectionsAreSeenFromTheirAxes)
{
    setKind(Settings::TriplanarProjection);
    setTriplanarSize(2.f);
    const osg::NodePtr root = box(3.8f);

    // On the screen z is to the left and y up.
    lookFrom(osg::Pnt3f(10.f, 0.f, 0.f));
    expectColors(draw(root),
                 { { -0.5f, 0.5f, kRed }, { -0.5f, 1.5f, kGreen }, { -1.5f, 0.5f, kBlue } },
                 "along x: u along y, v along z");
    edit([](Settings& s) { s.setTriplanarRotation(osg::Vec3f(0.5f * kPi, 0.f, 0.f)); });
    expectColors(redraw(),
                 { { -0.5f, -0.5f, kRed }, { -1.5f, -0.5f, kGreen }, { -0.5f, -1.5f, kBlue } },
                 "counter-clockwise about x");

    // On the screen x is to the right and z down.
    edit([](Settings& s) { s.setTriplanarRotation(osg::Vec3f(0.f, 0.f, 0.f)); });
    lookFrom(osg::Pnt3f(0.f, 10.f, 0.f));
    expectColors(redraw(),
                 { { 0.5f, -0.5f, kRed }, { 1.5f, -0.5f, kGreen }, { 0.5f, -1.5f, kBlue } },
                 "along y: u along x, v along z");
    edit([](Settings& s) { s.setTriplanarRotation(osg::Vec3f(0.f, 0.5f * kPi, 0.f)); });
    expectColors(redraw(),
                 { { -0.5f, -0.5f, kRed }, { -0.5f, -1.5f, kGreen }, { -1.5f, -0.5f, kBlue } },
                 "clockwise about y");
}

TEST_F(nbRenderProjectionsTest, TriplanarProjectionsMixByTheNormal)
{
    setKind(Settings::TriplanarProjection);
    setOneColorPerAxis();
    const osg::NodePtr root = box(2.f);
    draw(root);

    const std::pair<osg::Pnt3f, QColor> views[] = {
        { { 10.f, 0.f, 0.f }, kRed },   { { -10.f, 0.f, 0.f }, kRed },
        { { 0.f, 10.f, 0.f }, kGreen }, { { 0.f, -10.f, 0.f }, kGreen },
        { { 0.f, 0.f, 10.f }, kBlue },  { { 0.f, 0.f, -10.f }, kBlue },
    };
    for (const auto& [eye, shown] : views) {
        lookFrom(eye);
        expectColors(redraw(), { { 0.f, 0.f, shown }, { 0.9f, -0.9f, shown } }, "one axis");
    }
    lookFrom(osg::Pnt3f(0.f, 0.f, 10.f));
    setOneColorPerAxis({ 0.f, 0.25f * kPi, 0.f }, { 0.f, 1.f, 0.f }, -0.25f * kPi);
    const QColor half = at(redraw(), 0.f, 0.f);
    EXPECT_NEAR(half.red(), 128, 1);
    EXPECT_NEAR(half.blue(), 128, 1);
    // 30 degrees from z: a 81 : 1 by the eighth power of the ratio of cosines.
    setOneColorPerAxis({ kPi / 6.f, 0.f, 0.f }, { 1.f, 0.f, 0.f }, kPi / 6.f);
    const QColor sharp = at(redraw(), 0.f, 0.f);
    EXPECT_NEAR(sharp.blue(), 252, 1);
    EXPECT_NEAR(sharp.green(), 3, 1);
}

TEST_F(nbRenderProjectionsTest, TriplanarSizesAreTheWorldsAlongTheObjectsAxes)
{
    setKind(Settings::TriplanarProjection);
    setTriplanarSize(2.f);
    const osg::NodePtr plane = colored(osg::makePlane(2.f, 2.f, 1, 1), picture.material.get());
    // The object's x is up now, its origin at (0.5, 0).
    expectColors(
        draw(transformed(plane, { 0.5f, 0.f, 0.f }, { 0.f, 0.f, 90.f }, { 1.9f, 1.f, 1.f })),
        { { 0.f, 0.5f, kRed },
          { 0.f, 1.5f, kGreen },
          { -0.4f, 0.95f, kRed },
          { -0.4f, 1.05f, kGreen },
          { 1.f, 0.5f, kBlue } },
        "uneven scale");

    // A slope of 1 in 3 that the scale makes one of 45 degrees.
    setOneColorPerAxis();
    const osg::NodePtr slope = transformed(osg::makePlane(8.f, 1.f, 1, 1), { 0.f, 0.f, 0.f },
                                           { 0.f, 18.43495f, 0.f }, { 1.f, 1.f, 1.f });
    const QColor half =
        at(draw(transformed(materialGroup(picture.material.get(), slope), { 0.f, 0.f, 0.f },
                            { 0.f, 0.f, 0.f }, { 1.f, 1.f, 3.f })),
           0.f, 0.f);
    EXPECT_NEAR(half.red(), 128, 2);
    EXPECT_NEAR(half.blue(), 128, 2);
}

// == UV

TEST_F(nbRenderProjectionsTest, UvPictureMovesWithTheOffsetTurnsClockwiseAndRepeats)
{
    setKind(Settings::UVProjection);
    const osg::NodePtr root = wall();

    expectColors(draw(root),
                 { { -1.f, -1.f, kRed },
                   { 1.f, -1.f, kGreen },
                   { -1.f, 1.f, kBlue },
                   { 1.f, 1.f, kYellow } },
                 "as the geometry says");
    edit([](Settings& s) { s.setOffset(osg::Vec2f(0.25f, 0.125f)); });
    expectColors(redraw(),
                 { { 0.9f, 0.4f, kRed },
                   { 1.1f, 0.4f, kGreen },
                   { 0.9f, 0.6f, kBlue },
                   { -1.1f, 0.4f, kGreen } },
                 "offset to the right and up");
    edit([](Settings& s) { s.setRotate(90.f); });
    expectColors(redraw(), { { 0.9f, 0.4f, kGreen }, { 0.9f, 0.6f, kRed }, { 1.1f, 0.6f, kBlue } },
                 "and turned about the moved middle");
    edit([](Settings& s) {
        s.setOffset(osg::Vec2f(0.f, 0.f));
        s.setRotate(0.f);
        s.setRepeat(osg::Vec2f(2.f, -1.f));
    });
    expectColors(redraw(), { { -1.5f, 1.f, kRed }, { -0.5f, 1.f, kGreen }, { 0.5f, -1.f, kBlue } },
                 "twice beside each other, upside down");
    edit([](Settings& s) {
        s.setRepeat(osg::Vec2f(2.f, 1.f));
        s.setRotate(90.f);
    });
    expectColors(redraw(), { { -1.f, 1.5f, kRed }, { -1.f, 0.5f, kGreen }, { 1.f, -0.5f, kBlue } },
                 "what repeats is turned");
}

// == Tire

TEST_F(nbRenderProjectionsTest, TirePictureGoesAroundTheTreadAndAcrossTheSides)
{
    setKind(Settings::TireProjection);
    edit([](Settings& s) {
        s.setTireScaleHeight(2.f);
        s.setTireScaleRadius(1.f);
    });
    const osg::NodePtr root = wheel(2.f, 1.f);

    // +y, the middle of the picture, is up; z comes towards the eye.
    expectColors(draw(root), { { -0.5f, 0.5f, kGreen }, { 0.5f, 0.5f, kYellow } }, "once around");
    edit([](Settings& s) { s.setTireScaleU(0.5f); });
    expectColors(redraw(),
                 { { -0.5f, 0.5f, kGreen },
                   { 0.5f, 0.5f, kYellow },
                   { -0.5f, -0.5f, kRed },
                   { 0.5f, -0.5f, kBlue } },
                 "twice around");
    edit([](Settings& s) {
        s.setTireCenter(osg::Vec3f(0.5f, 0.f, 0.f));
        s.setTireScaleHeight(1.f);
    });
    expectColors(redraw(),
                 { { 0.1f, 0.5f, kGreen }, { 0.9f, 0.5f, kYellow }, { -0.1f, 0.5f, kYellow } },
                 "narrower, and moved along the axle");

    // On the screen z is to the left: u goes counter-clockwise from the top.
    lookFrom(osg::Pnt3f(10.f, 0.f, 0.f));
    expectColors(redraw(),
                 { { -0.1f, 0.4f, kYellow },
                   { 0.1f, 0.4f, kBlue },
                   { -0.1f, 0.7f, kGreen },
                   { 0.1f, 0.7f, kRed },
                   { -0.1f, -0.7f, kRed } },
                 "the right side, from the edge inwards");
    edit([](Settings& s) { s.setTireScaleRadius(0.5f); });
    expectColors(redraw(), { { -0.1f, 0.35f, kGreen }, { -0.05f, 0.2f, kYellow } }, "radius");
    // z is to the right: u goes clockwise.
    edit([](Settings& s) { s.setTireScaleRadius(1.f); });
    lookFrom(osg::Pnt3f(-10.f, 0.f, 0.f));
    expectColors(redraw(),
                 { { 0.1f, 0.4f, kGreen }, { -0.1f, 0.4f, kRed }, { 0.1f, 0.7f, kYellow } },
                 "the left side, from the edge inwards");
}

TEST_F(nbRenderProjectionsTest, TirePictureLiesInTheObjectsSpaceAndClosesWithoutASeam)
{
    setKind(Settings::TireProjection);
    // White at both ends, which meet at the bottom.
    QImage strip(64, 4, QImage::Format_RGB888);
    for (int x = 0; x < strip.width(); ++x) {
        for (int y = 0; y < strip.height(); ++y) {
            strip.setPixelColor(x, y, x < 16 || x >= 48 ? kWhite : kBlack);
        }
    }
    picture.setPicture(strip);
    edit([](Settings& s) { s.setTireCenter(osg::Vec3f(0.f, 0.3f, 0.f)); });
    const osg::NodePtr tire = placed(wheel(2.f, 1.f), osg::Vec3f(0.f, 0.3f, 0.f));
    // The wheel's own space is 0.3 below its centre.
    const QImage shown =
        draw(transformed(materialGroup(picture.material.get(), tire), { 0.f, -0.3f, 0.f },
                         { 90.f, 0.f, 0.f }, { 1.f, 1.f, 1.f }));

    expectColors(shown, { { 0.f, 0.f, kBlack } }, "the object's y looks to the eye");
    lookFrom(osg::Pnt3f(0.f, 0.f, -10.f));
    const QImage seam = redraw();
    for (int y = 0; y < 40; ++y) {
        ASSERT_EQ(at(seam, 0.3f, -0.7f + 0.02f * static_cast<float>(y)), kWhite) << y;
    }
}
