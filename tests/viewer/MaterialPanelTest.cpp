// SPDX-License-Identifier: MIT
// Putting pictures on objects in the window, as a person does it.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/MaterialPicture.h"
#include "viewer/gui/VectorEdit.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSlider>
#include <QUrl>

namespace viewer {
namespace {

const QString kLabel = QStringLiteral(NB_VIEWER_FOLDER "/models/label.png");

class MaterialPanelTest : public ShownWindow
{
protected:
    MaterialPanelTest() { showPanel("materialDock"); }

    /// Drops a file on the middle of an object, with the events of the window system.
    void drop(const QString& file, const char* node)
    {
        stage().selectByName(node);
        px = placeIn(stage(), SessionTarget::Kind::Node, node);
        stage().select(osg::NullFC);
        QMimeData data;
        data.setUrls({ QUrl::fromLocalFile(file) });
        const QPointF place = window.view().toLogical(px);
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&window.view(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.view(), &event);
        waitForQuiet();
    }

    static void type(QWidget* widget, const QString& text)
    {
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(widget, &press);
        }
        pressKey(*widget, Qt::Key_Return);
    }

    osg::Pnt2f px;  ///< where the last file was dropped
};

TEST_F(MaterialPanelTest, ADroppedPictureIsSeenWhereItFellAndTheObjectKeepsItsColour)
{
    const QImage before = picture();
    QString recorded;
    stage().commands().setListener([&recorded](const QString& name) { recorded = name; });
    drop(kLabel, "Vase");
    EXPECT_EQ(recorded, "texture.drop");
    EXPECT_EQ(find<QLabel>("textureFile")->text(), "label.png");
    EXPECT_EQ(value("texture.handles"), QJsonValue("universal"));
    action("texture.edit")->trigger();
    EXPECT_EQ(value("texture.edit"), QJsonValue(false));
    EXPECT_EQ(stage().gizmo().shown(), Gizmo::Universal) << "the gizmo before is back";

    // Without handles and without the display of the projection.
    stage().showGizmo(Gizmo::None);
    stage().select(osg::NullFC);
    const QImage after = picture();

    // The paper of the label is near white, the vase is not; far from the label nothing changes.
    const QPoint middle(static_cast<int>(px[0]), static_cast<int>(px[1]));
    int changed = 0;
    int blue = 0;
    for (int y = -12; y <= 12; ++y) {
        for (int x = -12; x <= 12; ++x) {
            const QPoint place = middle + QPoint(x, y);
            changed += before.pixel(place) != after.pixel(place) ? 1 : 0;
            blue = qMax(blue, qBlue(after.pixel(place)));
        }
    }
    EXPECT_GT(changed, 500);
    EXPECT_GT(blue, 140);
    const QPoint foot(middle.x(), middle.y() + 80);
    const QColor was = before.pixelColor(foot);
    const QColor is = after.pixelColor(foot);
    EXPECT_NEAR(was.red(), is.red(), 3);
    EXPECT_NEAR(was.blue(), is.blue(), 3);
    EXPECT_EQ(problems, QStringList());
}

TEST_F(MaterialPanelTest, APictureOnATexturedModelKeepsItsOwnColours)
{
    ModelData model;
    model.materials.resize(1);
    model.materials[0].diffuse = { 1.0F, 1.0F, 1.0F };
    model.materials[0].texture = QImage(4, 4, QImage::Format_RGB888);
    model.materials[0].texture.fill(QColor(0, 0, 255));
    model.meshes.resize(1);
    model.meshes[0].positions = { { -2, -2, 0 }, { 2, -2, 0 }, { 2, 2, 0 }, { -2, 2, 0 } };
    model.meshes[0].normals = { 4, Vec3 { 0, 0, 1 } };
    model.meshes[0].texCoords = { { 0, 0 }, { 1, 0 }, { 1, 1 }, { 0, 1 } };
    model.meshes[0].triangles = { 0, 1, 2, 0, 2, 3 };
    model.root.meshes = { 0 };
    model.root.name = QStringLiteral("Blue");
    stage().clear();
    stage().add(model);
    stage().setStandardView(nbCameraNavigation::StandardView::Front);
    stage().frameAll();

    drop(kLabel, "Blue");
    stage().showGizmo(Gizmo::None);
    stage().select(osg::NullFC);

    const QImage after = picture();
    const QPoint middle(after.width() / 2, after.height() / 2);
    int red = 0;
    for (int y = -10; y <= 10; ++y) {
        red = qMax(red, qRed(after.pixel(middle + QPoint(0, 4 * y))));
    }
    EXPECT_GT(red, 150) << "the label is as blue as the model";
    const QColor beside =
        after.pixelColor(middle + QPoint(qMin(after.width(), after.height()) * 2 / 5, 0));
    EXPECT_EQ(beside.red(), 0);
    EXPECT_GT(beside.blue(), 150);
}

TEST_F(MaterialPanelTest, TheProjectionIsSwitchedTypedAndDraggedAroundAClickedPlace)
{
    drop(kLabel, "Vase");
    ASSERT_FALSE(value("texture.projection").isNull()) << "it fell beside the object";
    auto* const projection = find<QComboBox>("texture.projection");
    EXPECT_EQ(projection->currentData().toString(), "planar");
    EXPECT_TRUE(find<QWidget>("texture.scale")->isVisible());
    EXPECT_FALSE(find<QAbstractButton>("texture-rotateScale")->isEnabled());

    projection->setFocus();
    pressKey(*projection, Qt::Key_Down);
    waitForQuiet();
    EXPECT_EQ(value("texture.projection"), QJsonValue("uv"));
    EXPECT_TRUE(find<QLabel>("materialHint")->text().contains("a box"));
    pressKey(*projection, Qt::Key_Down);
    waitForQuiet();
    EXPECT_EQ(value("texture.projection"), QJsonValue("triplanar"));
    EXPECT_FALSE(find<QWidget>("texture.scale")->isVisible());
    EXPECT_TRUE(find<QWidget>("texture.triplanarRepeatU")->isVisible());
    EXPECT_FALSE(find<QAbstractButton>("texture-scale")->isEnabled());
    EXPECT_TRUE(find<QAbstractButton>("texture-rotateScale")->isEnabled());

    const auto isPlacing = [this] { return value("texture.place").toBool(); };
    find<QAbstractButton>("texture-place")->click();
    EXPECT_TRUE(isPlacing());
    pressKey(window.view(), Qt::Key_Escape);
    EXPECT_FALSE(isPlacing());
    find<QAbstractButton>("texture-place")->click();
    find<QAbstractButton>("texture-place")->click();
    EXPECT_FALSE(isPlacing());
    find<QAbstractButton>("texture-place")->click();
    const osg::Pnt2f place = px + osg::Vec2f(5, 40);
    click(window.view().toLogical(place));
    waitForQuiet();
    EXPECT_EQ(stage().handleAt(place), "grid");
    EXPECT_TRUE(find<QAbstractButton>("texture-universal")->isChecked());

    const QList<QDoubleSpinBox*> boxes =
        find<VectorEdit>("texture.triplanarOffsetV")->findChildren<QDoubleSpinBox*>();
    auto* const shown = find<MaterialPicture>("materialPicture");
    const QImage before = shown->picture();
    const QPointF at = placeOf(SessionTarget::Kind::Handle, "yaShape");
    press(at);
    move(at + QPointF(0, -20));
    move(at + QPointF(0, -40));
    EXPECT_EQ(value("texture.preview"), QJsonValue(false));
    EXPECT_EQ(shown->picture(), before) << "the preview waits for the end of the drag";
    release(at + QPointF(0, -40));
    waitForQuiet();
    EXPECT_NE(shown->picture(), before);
    EXPECT_LT(boxes[2]->value(), -0.001) << "the picture went up along z";
    EXPECT_EQ(boxes[0]->value(), 0.0);

    boxes[2]->setFocus();
    boxes[2]->selectAll();
    type(boxes[2], "0.00123");
    EXPECT_NEAR(value("texture.triplanarOffsetV").toArray().at(2).toDouble(), 0.00123, 1e-7);
    find<QCheckBox>("texture.ringsTilted")->click();
    EXPECT_EQ(value("texture.ringsTilted"), QJsonValue(true));
    find<QSlider>("texture.handleSize")->setValue(60);
    EXPECT_EQ(value("texture.handleSize"), QJsonValue(90));
    find<QSlider>("texture.handleSize")->setValue(21);
    find<QAbstractButton>("textureRemove")->click();
    EXPECT_EQ(find<QLabel>("textureFile")->text(), "No picture");
    while (steps() > 1) {
        stage().undo();
    }
    EXPECT_EQ(projection->currentData().toString(), "planar");
    EXPECT_EQ(problems, QStringList());
}

}  // namespace
}  // namespace viewer
