// SPDX-License-Identifier: MIT
#pragma once

#include "portal/portal_call.h"

namespace halvern {

class DialogSession;

/// A dialog for a document that its application makes when it knows the answer. Main thread only.
class PrepareCall : public PortalCall {
    Q_OBJECT

public:
    PrepareCall(PortalRoom room, CallDetails details, ApplicationSettings settings,
                const QDBusMessage& message);
    ~PrepareCall() override;

    void start() override;

private:
    void takeEnd();
    AcceptedJob accepted() const;
    QString fileFormat() const;

    ApplicationSettings settings_;
    std::unique_ptr<DialogSession> session_;
    std::unique_ptr<PrintDialog> dialog_;
};

} // namespace halvern
