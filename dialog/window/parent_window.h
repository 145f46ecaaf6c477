// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <optional>

class QWidget;
class QWindow;

namespace halvern {

/// A window of another program, as programs of a desktop name theirs: "x11:" and the window's number in
/// hexadecimal digits, or "wayland:" and a handle.
struct ForeignWindow {
    std::optional<quint32> x11; ///< nothing: of a kind that this display cannot be told to use
};

/// What a text names; nothing if it names no window.
std::optional<ForeignWindow> readWindowName(const QString& text);

/// Has `window`, which was not shown yet, stay above the other program's window, and be centred on it. Where
/// the display cannot do that, or that window is gone, it comes up in the middle of the screen. The result
/// lives as long as `window`; null if there is nothing to keep. Main thread only.
std::shared_ptr<QWindow> putOver(QWidget* window, const ForeignWindow& parent, bool isModal);

} // namespace halvern
