// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/NodeManipulator.h"

#include <OpenSG/OSGGroup.h>

namespace nbec::manipulator::test {

/// A manipulator with an empty visualisation that writes down which of its operations ran and
/// answers as told.
class RecordingManipulator : public NodeManipulator
{
public:
    RecordingManipulator()
        : visualisation(osg::makeCoredNode<osg::Group>())
        , collider(osg::makeCoredNode<osg::Group>())
    { }

    osg::NodePtr getVisualisation() override { return visualisation.get(); }

    osg::NodePtr getCollider() override { return collider.get(); }

    void update(bool /*force*/) override { }

    bool startManipulator(ManipulatorInteractionContext* /*ctx*/, const std::string& hint) override
    {
        return record("start " + hint);
    }

    bool processManipulator(ManipulatorInteractionContext* /*ctx*/,
                            const std::string& hint) override
    {
        return record("process " + hint);
    }

    bool stopManipulator(ManipulatorInteractionContext* /*ctx*/, const std::string& hint) override
    {
        return record("stop " + hint);
    }

    bool hoverManipulator(ManipulatorInteractionContext* /*ctx*/, const std::string& hint) override
    {
        return record("hover " + hint);
    }

    bool resetManipulator(ManipulatorInteractionContext* /*ctx*/, const std::string& hint) override
    {
        return record("reset " + hint);
    }

    bool setManipulatorMode(const std::string& newMode) override
    {
        return record("mode " + newMode);
    }

    std::vector<std::string> takeCalls()
    {
        std::vector<std::string> taken;
        taken.swap(calls);
        return taken;
    }

    bool answer = false;

private:
    bool record(const std::string& call)
    {
        calls.push_back(call);
        return answer;
    }

    osg::RefPtr<osg::NodePtr> visualisation;
    osg::RefPtr<osg::NodePtr> collider;
    std::vector<std::string> calls;
};

}  // namespace nbec::manipulator::test
