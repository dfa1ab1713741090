// SPDX-License-Identifier: MIT
#include <marlin/qt/window_system.h>

#include <QApplication>
#include <QFileInfo>
#include <array>
#include <memory>

#include <xcb/xcb.h>

namespace {

bool HasWaylandServer() {
    const QString display = qEnvironmentVariable("WAYLAND_DISPLAY");
    const QString socket =
        display.startsWith('/') ? display : qEnvironmentVariable("XDG_RUNTIME_DIR") + '/' + display;
    return !display.isEmpty() && QFileInfo::exists(socket);
}

bool HasXServer() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool isConnected = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return isConnected;
}

// An application without a display ends the process, so it is looked for before.
bool HasDisplay() {
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM").section(':', 0, 0);
    if (platform == "xcb") {
        return HasXServer();
    }
    if (platform.startsWith("wayland")) {
        return HasWaylandServer();
    }
    return !platform.isEmpty() || HasWaylandServer() || HasXServer();
}

struct OwnApplication {
    int Count = 1;
    std::array<char, 7> Name = {"marlin"};
    std::array<char*, 2> Arguments = {Name.data(), nullptr};
    QApplication Application{Count, Arguments.data()};
};

// Lives until the process has ended. The statics of Qt, which come and go in an order of their own,
// and dialogs that are static objects are then destroyed while it still stands.
template <typename Object>
Object* MakeForever() {
    return std::make_unique<Object>().release();
}

}  // namespace

bool MARLINSUITE::UseQtWindows() {
    if (!QCoreApplication::instance()) {
        if (!HasDisplay()) {
            return false;
        }
        [[maybe_unused]] static auto* const application = MakeForever<OwnApplication>();
    }
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        return false;
    }
    static auto* const windows = MakeForever<PLATFORM::QtWindowSystem>();
    PLATFORM::WindowSystem::SetCurrent(windows);
    return true;
}
