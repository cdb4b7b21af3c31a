// SPDX-License-Identifier: MIT
#include "PreviewMessages.h"

#include <nbKernel/nbController.h>
#include <nbUtils/nbLog.h>

#include <algorithm>
#include <vector>

namespace {

constexpr const char* kEnabledMessage = "setMatRenderEnabled";
constexpr const char* kUpdateMessage = "updateMatRender";

std::vector<PreviewMessages*>& hearers()
{
    static std::vector<PreviewMessages*> all;
    return all;
}

/// Tells all; those that come or go meanwhile are taken as they are then.
template <class Tell>
void tellAll(const Tell& tell)
{
    const std::vector<PreviewMessages*> present = hearers();
    for (PreviewMessages* hearer : present) {
        if (std::find(hearers().begin(), hearers().end(), hearer) != hearers().end()) {
            tell(*hearer);
        }
    }
}

void receiveEnabled(nbMessage& message)
{
    const boost::any* const value = message.find("enabled");
    const bool* const enabled = value == nullptr ? nullptr : boost::any_cast<bool>(value);
    if (enabled == nullptr) {
        nbLog::warning(std::string(kEnabledMessage) +
                       ": the attribute 'enabled' is missing or no bool; nothing is changed");
        return;
    }
    tellAll([on = *enabled](PreviewMessages& hearer) { hearer.previewEnabled(on); });
}

}  // namespace

PreviewMessages::PreviewMessages()
{
    hearers().push_back(this);
    if (!nbController::hasReceiver(kEnabledMessage)) {
        nbController::addReceiver(kEnabledMessage, &receiveEnabled);
    }
    if (!nbController::hasReceiver(kUpdateMessage)) {
        nbController::addReceiver(kUpdateMessage, [](nbMessage&) {
            tellAll([](PreviewMessages& hearer) { hearer.previewUpdateWanted(); });
        });
    }
}

PreviewMessages::~PreviewMessages()
{
    std::vector<PreviewMessages*>& all = hearers();
    all.erase(std::find(all.begin(), all.end(), this));
    if (all.empty()) {
        nbController::removeReceiver(kEnabledMessage);
        nbController::removeReceiver(kUpdateMessage);
    }
}
