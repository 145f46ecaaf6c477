// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace halvern {

/// A box without a frame around radio buttons that belong together: assistive technology hears it as a group,
/// named by its label. Main thread only.
class ChoiceGroup : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceGroup(QWidget* parent = nullptr);
};

} // namespace halvern
