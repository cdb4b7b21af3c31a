// SPDX-License-Identifier: MIT
// A host that sends the platform's handlers whatever it likes.
#include "tests/fuzz/Play.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbUtils/nbLog.h>

#include <QUndoStack>
#include <QtCore/QString>
#include <QtGui/QVector2D>
#include <QtGui/QVector3D>

#include <utility>

namespace nbec::manipulator::test {

namespace {

/// Makes a value of one type.
using Maker = boost::any (*)(const Stage& stage, Bytes& bytes);

/// What a message may carry and as which type its handler reads it.
enum Type : std::size_t
{
    Bool,
    Float,
    Vec2,
    Vec3,
    Point,
    Node,
    Nodes,
    Text,
    QtVec2
};

/// In the order of Type; the others no handler reads.
constexpr std::array<Maker, 15> kMakers = {
    [](const Stage&, Bytes& bytes) -> boost::any { return bytes.flag(); },
    [](const Stage&, Bytes& bytes) -> boost::any { return bytes.number(); },
    [](const Stage&, Bytes& bytes) -> boost::any { return bytes.number2(); },
    [](const Stage&, Bytes& bytes) -> boost::any { return bytes.number3(); },
    [](const Stage&, Bytes& bytes) -> boost::any { return osg::Pnt3f(bytes.number3()); },
    [](const Stage& stage, Bytes& bytes) -> boost::any {
        return bytes.flag() ? stage.node(bytes) : stage.plate(bytes);
    },
    [](const Stage& stage, Bytes& bytes) -> boost::any { return stage.somePlates(bytes); },
    [](const Stage& stage, Bytes& bytes) -> boost::any { return stage.hint(bytes); },
    [](const Stage&, Bytes& bytes) -> boost::any {
        const osg::Vec2f value = bytes.number2();
        return QVector2D(value.x(), value.y());
    },
    [](const Stage&, Bytes& bytes) -> boost::any { return static_cast<int>(bytes.next()); },
    [](const Stage&, Bytes& bytes) -> boost::any { return static_cast<double>(bytes.number()); },
    [](const Stage& stage, Bytes& bytes) -> boost::any {
        return QString::fromStdString(stage.hint(bytes));
    },
    [](const Stage&, Bytes& bytes) -> boost::any { return QVector3D(bytes.number(), 0, 0); },
    [](const Stage&, Bytes&) -> boost::any { return osg::Quaternion(); },
    [](const Stage&, Bytes&) { return boost::any(); },
};

struct Attribute
{
    const char* name;
    Type type;
};

constexpr std::array<Attribute, 27> kAttributes = { {
    { "enabled", Bool }, { "clamping", Bool },     { "autoParameter", Bool }, { "rotate", Float },
    { "rotate", Vec3 },  { "offset", Vec2 },       { "offset", QtVec2 },      { "scale", Vec2 },
    { "scale", Vec3 },   { "transVec", Vec3 },     { "XOffset", Vec2 },       { "YOffset", Vec2 },
    { "ZOffset", Vec2 }, { "XScale", Vec2 },       { "YScale", Vec2 },        { "ZScale", Vec2 },
    { "center", Vec3 },  { "ScaleHeight", Float }, { "ScaleRadius", Float },  { "ScaleU", Float },
    { "hitNode", Node }, { "hitPoint", Point },    { "hitNormal", Vec3 },     { "node", Node },
    { "nodes", Nodes },  { "hint", Text },         { "scaleFactor", Float },
} };

constexpr std::array<const char*, 12> kNames = { "editor::changedPlanarManipulator",
                                                 "editor::getScaleValues",
                                                 "editor::placeTexture",
                                                 "editor::changedTireManipulator",
                                                 "editor::changedTriplanarManipulator",
                                                 "editor::changedUVManipulator",
                                                 "setMatRenderEnabled",
                                                 "updateMatRender",
                                                 "sceneplateChanged",
                                                 "sceneplatePreselected",
                                                 "sceneplateSelected",
                                                 "editor::unknown" };

class MessageActor : public Actor
{
public:
    explicit MessageActor(Stage& joined)
        : stage(joined)
        , formerSink(nbLog::setSink([this](nbLog::Level, const std::string&) { ++lines; }))
    {
        stage.isPreviewOurs = false;
    }

    ~MessageActor() override
    {
        nbLog::setSink(std::move(formerSink));
        nbController::call("setMatRenderEnabled", enabling, 0);
        nbController::call("updateMatRender", 0);
    }

    void act(Bytes& bytes) override
    {
        if (bytes.once(8)) {
            return;
        }
        const std::string name = bytes.once(16) ? bytes.text() : bytes.oneOf(kNames);
        nbMessage message;
        for (unsigned left = bytes.next() % 5; left > 0; --left) {
            add(message, bytes);
        }
        if (stage.plateModule == nullptr && name.compare(0, 10, "sceneplate") == 0) {
            return;  // would go to the stage's own receiver
        }
        send(name, message);
        if (bytes.once(2)) {
            takeBack();
        }
    }

    std::string check() override { return fault; }

private:
    void add(nbMessage& message, Bytes& bytes) const
    {
        const Attribute& attribute = bytes.oneOf(kAttributes);
        const std::size_t type =
            bytes.once(4) ? bytes.next() % kMakers.size() : std::size_t(attribute.type);
        message.set(bytes.once(16) ? bytes.text() : attribute.name, kMakers[type](stage, bytes),
                    bytes.flag());
    }

    /// Sends; a message that is refused costs one line and changes nothing.
    void send(const std::string& name, nbMessage& message)
    {
        const std::vector<float> before = stage.values();
        lines = 0;
        const bool isKnown = nbController::hasReceiver(name);
        // What is said of a selection, left out plates for example, comes with a change.
        const bool isSelection = name == "sceneplateSelected";
        if (nbController::call(name.c_str(), message, 0) != isKnown) {
            fault = name + ": a handler threw";
        } else if (lines > 1 && !isSelection) {
            fault = name + ": more than one line";
        } else if (lines == 1 && stage.values() != before) {
            fault = name + ": changed something and complained";
        }
        sent = name;
        valuesBefore = before;
    }

    /// Undo and redo give back exactly what a message has changed.
    void takeBack()
    {
        nbUndoService* const undo = nbUndoService::the();
        const std::vector<float> after = stage.values();
        if (after == valuesBefore || undo->isGroupOpen()) {
            return;
        }
        if (!undo->undo() || stage.values() != valuesBefore) {
            fault = sent + ": cannot be undone";
        } else if (!undo->redo() || stage.values() != after) {
            fault = sent + ": cannot be done again";
        }
    }

    Stage& stage;
    nbLog::Sink formerSink;
    int lines = 0;
    std::string fault;
    std::string sent;
    std::vector<float> valuesBefore;
    nbMessage enabling = [] {
        nbMessage message;
        message.set("enabled", true, true);
        return message;
    }();
};

}  // namespace

std::unique_ptr<Actor> makeMessageActor(Stage& stage)
{
    return std::make_unique<MessageActor>(stage);
}

}  // namespace nbec::manipulator::test
