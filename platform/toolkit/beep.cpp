// SPDX-License-Identifier: MIT
#include "platform/toolkit/beep.h"

#include <QApplication>

#include <utility>

namespace halvern {

namespace {

std::function<void()>& beepHandler()
{
    static std::function<void()> handler;
    return handler;
}

} // namespace

void beep()
{
    if (beepHandler())
        beepHandler()();
    else
        QApplication::beep();
}

void setBeepHandler(std::function<void()> handler)
{
    beepHandler() = std::move(handler);
}

} // namespace halvern
