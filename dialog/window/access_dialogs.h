// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/access.h"

#include <QObject>

class QDialog;
class QWidget;

namespace halvern {

/// Asks the user in dialogs over a window when a worker's conversation wants to know a password, or whether a
/// certificate is to be trusted; the main thread never waits, and is never asked. As long as it lives, and no
/// later one does, it is whom cups::Access asks. Main thread only.
class AccessDialogs : public QObject {
    Q_OBJECT

public:
    /// Over this window, whose child it becomes; in windows of their own without one.
    explicit AccessDialogs(QWidget* window);
    ~AccessDialogs() override;

private:
    class Questions;

    std::shared_ptr<Questions> questions_;
};

} // namespace halvern
