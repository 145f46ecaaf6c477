// SPDX-License-Identifier: MIT
#include "dialog/window/parent_window.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace halvern {

std::optional<ForeignWindow> readWindowName(const QString& text)
{
    const QString kind = text.section(QLatin1Char(':'), 0, 0);
    const QString handle = text.section(QLatin1Char(':'), 1);
    if (kind == QLatin1StringView("wayland") && !handle.isEmpty())
        return ForeignWindow();
    bool isNumber = false;
    const quint32 number = handle.toUInt(&isNumber, 16);
    if (kind != QLatin1StringView("x11") || !isNumber || number == 0)
        return std::nullopt;
    return ForeignWindow{number};
}

std::shared_ptr<QWindow> putOver(QWidget* window, const ForeignWindow& parent, bool isModal)
{
    // For the window manager only: among the windows of this program each has a user of its own.
    if (isModal)
        window->setWindowModality(Qt::WindowModal);
    if (!parent.x11 || QGuiApplication::platformName() != QLatin1StringView("xcb"))
        return nullptr;
    std::shared_ptr<QWindow> foreign(QWindow::fromWinId(*parent.x11));
    window->winId();
    if (foreign && window->windowHandle())
        window->windowHandle()->setTransientParent(foreign.get());
    return foreign;
}

} // namespace halvern
