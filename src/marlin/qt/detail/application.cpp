// SPDX-License-Identifier: MIT
#include <marlin/qt/detail/application.h>
#include <marlin/qt/detail/make.h>

#include <QApplication>
#include <QFileInfo>
#include <array>

#include <xcb/xcb.h>

namespace PLATFORM::detail {

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

// Qt ends the process when it makes an application without a display, so the display is looked for
// before.
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

// Qt keeps references to the arguments.
struct OwnApplication {
    int Count = 1;
    std::array<char, 7> Name = {"marlin"};
    std::array<char*, 2> Arguments = {Name.data(), nullptr};
    QApplication Application{Count, Arguments.data()};
};

}  // namespace

bool HaveApplication() {
    if (!QCoreApplication::instance()) {
        if (!HasDisplay()) {
            return false;
        }
        [[maybe_unused]] static auto* const application = MakeForever<OwnApplication>();
    }
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

}  // namespace PLATFORM::detail
