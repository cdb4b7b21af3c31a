// SPDX-License-Identifier: MIT
#include <nbOpenSGSelection/nbSelection.h>
#include <nbUtils/nbGuard.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <utility>

namespace {

struct NumberedCallback
{
    int number = 0;
    nbSelection::ChangedCallback callback;
};

using Ids = std::vector<osg::UInt32>;

Ids selectedIds;
std::vector<NumberedCallback> callbacks;
int lastNumber = 0;

osg::NodePtr nodeOf(osg::UInt32 id)
{
    return osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

void appendOnce(Ids& ids, const osg::NodePtr& node)
{
    if (node == osg::NullFC) {
        return;
    }
    const osg::UInt32 id = node.getFieldContainerId();
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
        ids.push_back(id);
    }
}

Ids livingIds()
{
    Ids ids;
    for (const osg::UInt32 id : selectedIds) {
        if (nodeOf(id) != osg::NullFC) {
            ids.push_back(id);
        }
    }
    return ids;
}

const NumberedCallback* findCallback(int number)
{
    const auto found = std::find_if(
        callbacks.begin(), callbacks.end(),
        [number](const NumberedCallback& registered) { return registered.number == number; });
    return found != callbacks.end() ? &*found : nullptr;
}

/// Calls those registered now, except for those that are removed meanwhile.
void callCallbacks()
{
    std::vector<int> numbers;
    for (const NumberedCallback& registered : callbacks) {
        numbers.push_back(registered.number);
    }
    for (const int number : numbers) {
        if (const NumberedCallback* const registered = findCallback(number)) {
            const nbSelection::ChangedCallback callback = registered->callback;
            nbGuarded("nbSelection: a changed callback", [&callback] {
                callback();
                return true;
            });
        }
    }
}

/// Takes over a selection of living nodes and tells if it differs from what could be read before.
void replace(Ids ids)
{
    const bool isChanged = ids != livingIds();
    selectedIds = std::move(ids);
    if (isChanged) {
        callCallbacks();
    }
}

}  // namespace

void nbSelection::set(const osg::NodePtr& node)
{
    set(std::vector<osg::NodePtr> { node });
}

void nbSelection::set(const std::vector<osg::NodePtr>& nodes)
{
    Ids ids;
    for (const osg::NodePtr& node : nodes) {
        appendOnce(ids, node);
    }
    replace(std::move(ids));
}

void nbSelection::add(const osg::NodePtr& node)
{
    Ids ids = livingIds();
    appendOnce(ids, node);
    replace(std::move(ids));
}

void nbSelection::remove(const osg::NodePtr& node)
{
    if (!contains(node)) {
        return;
    }
    Ids ids = livingIds();
    ids.erase(std::remove(ids.begin(), ids.end(), node.getFieldContainerId()), ids.end());
    replace(std::move(ids));
}

void nbSelection::toggle(const osg::NodePtr& node)
{
    if (contains(node)) {
        remove(node);
    } else {
        add(node);
    }
}

void nbSelection::clear()
{
    replace({});
}

std::vector<osg::NodePtr> nbSelection::getNodes()
{
    std::vector<osg::NodePtr> nodes;
    for (const osg::UInt32 id : livingIds()) {
        nodes.push_back(nodeOf(id));
    }
    return nodes;
}

osg::NodePtr nbSelection::getLast()
{
    const Ids ids = livingIds();
    return ids.empty() ? osg::NodePtr(osg::NullFC) : nodeOf(ids.back());
}

bool nbSelection::contains(const osg::NodePtr& node)
{
    return node != osg::NullFC &&
        std::find(selectedIds.begin(), selectedIds.end(), node.getFieldContainerId()) !=
        selectedIds.end();
}

bool nbSelection::isEmpty()
{
    return livingIds().empty();
}

int nbSelection::addChangedCallback(ChangedCallback callback)
{
    if (!callback) {
        return 0;
    }
    callbacks.push_back({ ++lastNumber, std::move(callback) });
    return lastNumber;
}

void nbSelection::removeChangedCallback(int number)
{
    callbacks.erase(std::remove_if(callbacks.begin(), callbacks.end(),
                                   [number](const NumberedCallback& registered) {
                                       return registered.number == number;
                                   }),
                    callbacks.end());
}
