// SPDX-License-Identifier: MIT
#include <marlin/base/error_string.h>
#include <marlin/qt/detail/application.h>
#include <marlin/qt/detail/make.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <array>
#include <cerrno>
#include <clocale>
#include <string>

#include <xcb/xcb.h>

namespace PLATFORM::detail {

namespace {

constexpr const char* platformVariable = "QT_QPA_PLATFORM";

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

// The platform by its name, without what follows a colon.
bool HasDisplay(const QString& name) {
    return name == "xcb" ? HasXServer() : name.startsWith("wayland") ? HasWaylandServer() : true;
}

// True when a plug-in of that name is there and can be loaded.
bool HasPlugin(const QString& name) {
    QStringList folders = {QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms"};
    folders += qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH").split(':', Qt::SkipEmptyParts);
    for (const QString& folder : folders) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.so"}, QDir::Files)) {
            QPluginLoader plugin(file.filePath());
            const QJsonArray keys =
                plugin.metaData().value("MetaData").toObject().value("Keys").toArray();
            if (keys.contains(name) && plugin.load()) {
                return true;
            }
        }
    }
    return false;
}

// Those that are asked for, or else those of a desktop.
QStringList WantedPlatforms() {
    const QString asked = qEnvironmentVariable(platformVariable);
    return asked.isEmpty() ? QStringList{"wayland", "xcb"} : asked.split(';', Qt::SkipEmptyParts);
}

// Qt ends the process when it cannot show windows, so what it would find is looked for before.
// Empty for none, with the reasons recorded.
QString UsablePlatform() {
    QString reasons;
    for (const QString& platform : WantedPlatforms()) {
        const QString name = platform.section(':', 0, 0);
        const bool hasDisplay = HasDisplay(name);
        if (hasDisplay && HasPlugin(name)) {
            return platform;
        }
        reasons += (reasons.isEmpty() ? "" : "; ") + name +
                   (hasDisplay ? ": there is no such plug-in" : ": no display can be reached");
    }
    ErrorString::RecordFailure(reasons.toStdString());
    return {};
}

void Drop(QtMsgType, const QMessageLogContext&, const QString&) {}

// Qt keeps references to the arguments. By the program's name a desktop finds its icon.
struct OwnApplication {
    int Count = 1;
    std::string Name = program_invocation_short_name;
    std::array<char*, 2> Arguments = {Name.data(), nullptr};
    QApplication Application{Count, Arguments.data()};
};

void MakeApplication(const QString& platform) {
    // What Qt would change in the process for good, and what it is told for this once.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    const bool wasSet = qEnvironmentVariableIsSet(platformVariable);
    const QByteArray before = qgetenv(platformVariable);
    qputenv(platformVariable, platform.toUtf8());
    qInstallMessageHandler(Drop);
    const auto* const made = MakeForever<OwnApplication>();
    QGuiApplication::setDesktopFileName(QString::fromStdString(made->Name));
    if (wasSet) {
        qputenv(platformVariable, before);
    } else {
        qunsetenv(platformVariable);
    }
    std::setlocale(LC_ALL, locale.c_str());
}

}  // namespace

bool HaveApplication() {
    if (!QCoreApplication::instance()) {
        const QString platform = UsablePlatform();
        if (platform.isEmpty()) {
            return false;
        }
        MakeApplication(platform);
    }
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

}  // namespace PLATFORM::detail
