// SPDX-License-Identifier: MIT
#include "platform/toolkit/user_action.h"

#include <utility>

namespace halvern {

namespace {

struct State {
    int depth = 0;
    int wholesale = 0;
    quint64 last = 0;
    bool hasProposed = false;
};

State state;

} // namespace

UserAction::UserAction(Reach reach) : widens_(reach == Reach::allOptions)
{
    if (state.depth++ == 0) {
        ++state.last;
        state.hasProposed = false;
    }
    state.wholesale += widens_ ? 1 : 0;
}

UserAction::~UserAction()
{
    --state.depth;
    state.wholesale -= widens_ ? 1 : 0;
}

bool UserAction::isUnderWay()
{
    return state.depth > 0;
}

quint64 UserAction::number()
{
    return isUnderWay() ? state.last : 0;
}

bool UserAction::takeProposal()
{
    const bool isFirst = !std::exchange(state.hasProposed, true);
    return isUnderWay() && (isFirst || state.wholesale > 0);
}

} // namespace halvern
