// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/user_events.h>

#include <QKeyEvent>

namespace PLATFORM::detail {

/// Offers the letters that are pressed with Control in a control to its dialog, before the control
/// makes use of them.
class KeyFilter final : public QObject {
public:
    KeyFilter(HWND control, QObject* watched) : QObject(watched), m_Control(control) {}

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto& press = static_cast<const QKeyEvent&>(*event);
        const HeldKeys held = {press.modifiers().testFlag(Qt::ShiftModifier),
                               press.modifiers().testFlag(Qt::ControlModifier)};
        // Letters have the numbers of their capitals in both.
        const bool isLetter = press.key() >= Qt::Key_A && press.key() <= Qt::Key_Z;
        return isLetter && held.Control && SendKeyDown(m_Control, press.key(), held);
    }

private:
    HWND m_Control;
};

}  // namespace PLATFORM::detail
