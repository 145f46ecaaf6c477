// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace halvern {

/// Says why something is off to whoever rests the pointer on it: a control or a menu's item below `root` that
/// is disabled, has no tool tip, and describes itself to assistive technology. Main thread only; lives as
/// long as `root`, its parent.
class DisabledReasons : public QObject {
    Q_OBJECT

public:
    explicit DisabledReasons(QWidget* root);

Q_SIGNALS:
    void asked(const QString& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isBelowRoot(const QObject* object) const;
};

} // namespace halvern
