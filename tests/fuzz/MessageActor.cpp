// SPDX-License-Identifier: MIT
// A host that sends the platform's handlers whatever it likes.
#include "tests/fuzz/Actor.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbUtils/nbLog.h>

#include <QtCore/QString>
#include <QtGui/QVector2D>
#include <QtGui/QVector3D>
#include <QtWidgets/QUndoStack>

#include <utility>

namespace nbec::manipulator::test {

namespace {

/// What a message may carry and as which type its handler reads it.
enum class Type : std::size_t
{
    Bool,
    Float,
    Vec2,
    Vec3,
    Point,
    Node,
    Nodes,
    Text,
    QtVec2,
    Int,
    Double,
    QtText,
    QtVec3,
    Turn,
    Nothing,
    Count
};

struct Attribute
{
    const char* name;
    Type type;
};

constexpr std::array<Attribute, 27> kAttributes = { {
    { "enabled", Type::Bool },      { "clamping", Type::Bool },  { "autoParameter", Type::Bool },
    { "rotate", Type::Float },      { "rotate", Type::Vec3 },    { "offset", Type::Vec2 },
    { "offset", Type::QtVec2 },     { "scale", Type::Vec2 },     { "scale", Type::Vec3 },
    { "transVec", Type::Vec3 },     { "XOffset", Type::Vec2 },   { "YOffset", Type::Vec2 },
    { "ZOffset", Type::Vec2 },      { "XScale", Type::Vec2 },    { "YScale", Type::Vec2 },
    { "ZScale", Type::Vec2 },       { "center", Type::Vec3 },    { "ScaleHeight", Type::Float },
    { "ScaleRadius", Type::Float }, { "ScaleU", Type::Float },   { "hitNode", Type::Node },
    { "hitPoint", Type::Point },    { "hitNormal", Type::Vec3 }, { "node", Type::Node },
    { "nodes", Type::Nodes },       { "hint", Type::Text },      { "scaleFactor", Type::Float },
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

boost::any valueOf(Type type, const Stage& stage, Bytes& bytes)
{
    switch (type) {
    case Type::Bool:
        return bytes.flag();
    case Type::Float:
        return bytes.number();
    case Type::Vec2:
        return bytes.number2();
    case Type::Vec3:
        return bytes.number3();
    case Type::Point:
        return osg::Pnt3f(bytes.number3());
    case Type::Node:
        return bytes.flag() ? stage.node(bytes) : stage.plate(bytes);
    case Type::Nodes:
        return stage.somePlates(bytes);
    case Type::Text:
        return stage.hint(bytes);
    case Type::QtVec2: {
        const osg::Vec2f value = bytes.number2();
        return QVector2D(value.x(), value.y());
    }
    case Type::Int:
        return static_cast<int>(bytes.next());
    case Type::Double:
        return static_cast<double>(bytes.number());
    case Type::QtText:
        return QString::fromStdString(stage.hint(bytes));
    case Type::QtVec3:
        return QVector3D(bytes.number(), 0.0F, 0.0F);
    case Type::Turn:
        return osg::Quaternion();
    case Type::Nothing:
    case Type::Count:
        break;
    }
    return boost::any();
}

class MessageActor : public Actor
{
public:
    explicit MessageActor(Stage& joined)
        : stage(joined)
        , formerSink(nbLog::setSink([this](nbLog::Level, const std::string&) { ++lines; }))
    {
        stage.isPreviewOurs = false;
    }

    MessageActor(const MessageActor&) = delete;
    MessageActor& operator=(const MessageActor&) = delete;

    ~MessageActor() override
    {
        nbLog::setSink(std::move(formerSink));
        nbController::call("setMatRenderEnabled", enabling, 0);
        nbController::call("updateMatRender", 0);
    }

    void act(Bytes& bytes) override
    {
        if (bytes.once(8)) {
            return notify(bytes);
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

    bool isActive() const override { return false; }

private:
    void add(nbMessage& message, Bytes& bytes) const
    {
        const Attribute& attribute = bytes.oneOf(kAttributes);
        const Type type = bytes.once(4)
            ? static_cast<Type>(bytes.next() % static_cast<std::size_t>(Type::Count))
            : attribute.type;
        message.set(bytes.once(16) ? bytes.text() : attribute.name, valueOf(type, stage, bytes),
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

    /// Texts on the screen, by handles known and unknown.
    void notify(Bytes& bytes)
    {
        auto* const manager = notification::NotificationManager::getInstance();
        const QString text = QString::fromStdString(bytes.text());
        switch (bytes.next() % 5) {
        case 0:
            shown = manager->createTextNotification(bytes.text(), text);
            return;
        case 1:
            return manager->setText(shown, text);
        case 2:
            return manager->removeTextNotification(shown);
        case 3:
            manager->registerNotifier(bytes.text(), std::make_shared<notification::Notifier>());
            return;
        default:
            manager->getVisibleTexts(static_cast<int>(bytes.next()) - 8, 100);
        }
    }

    Stage& stage;
    nbLog::Sink formerSink;
    int lines = 0;
    std::string fault;
    std::string sent;
    std::vector<float> valuesBefore;
    notification::TextNotification* shown = nullptr;
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
