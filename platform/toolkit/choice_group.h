// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QWidget>

namespace HALVERN_EXPORT halvern {

/// A box without a frame around radio buttons that belong together: assistive technology hears it as a group,
/// named by its label. Main thread only.
class ChoiceGroup : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceGroup(QWidget* parent = nullptr);
};

} // namespace halvern
