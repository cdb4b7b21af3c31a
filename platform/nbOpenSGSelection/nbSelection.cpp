// SPDX-License-Identifier: MIT
#include <nbOpenSGSelection/nbNodeSet.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbUtils/nbCallbackList.h>

#include <utility>

namespace {

nbNodeSet selected;
nbCallbackList callbacks("nbSelection: a changed callback");

void callIf(bool isChanged)
{
    if (isChanged) {
        callbacks.call();
    }
}

}  // namespace

void nbSelection::set(const osg::NodePtr& node)
{
    callIf(selected.set({ node }));
}

void nbSelection::set(const std::vector<osg::NodePtr>& nodes)
{
    callIf(selected.set(nodes));
}

void nbSelection::add(const osg::NodePtr& node)
{
    callIf(selected.add({ node }));
}

void nbSelection::remove(const osg::NodePtr& node)
{
    callIf(selected.remove({ node }));
}

void nbSelection::toggle(const osg::NodePtr& node)
{
    callIf(selected.toggle({ node }));
}

void nbSelection::clear()
{
    callIf(selected.clear());
}

std::vector<osg::NodePtr> nbSelection::getNodes()
{
    return selected.getNodes();
}

osg::NodePtr nbSelection::getLast()
{
    const std::vector<osg::NodePtr> nodes = selected.getNodes();
    return nodes.empty() ? osg::NodePtr(osg::NullFC) : nodes.back();
}

bool nbSelection::contains(const osg::NodePtr& node)
{
    return selected.contains(node);
}

bool nbSelection::isEmpty()
{
    return selected.getNodes().empty();
}

int nbSelection::addChangedCallback(ChangedCallback callback)
{
    return callbacks.add(std::move(callback));
}

void nbSelection::removeChangedCallback(int number)
{
    callbacks.remove(number);
}
