// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QtGlobal>

namespace HALVERN_EXPORT halvern {

/// Stands while a panel does what a control was told by the user, so that the dialog can tell a user's choice
/// from what a panel changes by itself. The first choice that a panel proposes meanwhile is the user's, the
/// others follow from it. Main thread only.
class UserAction {
public:
    enum class Reach {
        oneOption,
        allOptions, ///< every choice proposed meanwhile is the user's
    };

    /// Inside another one it belongs to that one's action.
    explicit UserAction(Reach reach = Reach::oneOption);
    ~UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;

    static bool isUnderWay();

    /// Of the action under way, never used again; 0 if there is none.
    static quint64 number();

    /// Notes that a choice was proposed. Whether it is the user's own.
    static bool takeProposal();

private:
    const bool widens_;
};

} // namespace halvern
