// SPDX-License-Identifier: MIT
#include <marlin/platform/text/code_page.h>
#include <marlin/qt/detail/qt_text.h>

#include <QFile>
#include <string>

namespace PLATFORM::detail {

QString QtText(std::string_view text) {
    return QString::fromStdString(ToUtf8(text));
}

CString TextOf(const QString& text, std::string_view before) {
    const std::string utf8 = text.toStdString();
    if (ToUtf8(before) == utf8) {
        return CString(before);
    }
    const std::string windows = FromUtf8(utf8);
    // Bytes that would be read as other characters are none of this text.
    return CString(!IsUtf8(before) && ToUtf8(windows) == utf8 ? windows : utf8);
}

QString QtPath(const CString& path) {
    return QFile::decodeName(QByteArray(path.GetString(), path.GetLength()));
}

CString PathOf(const QString& path) {
    return CString(QFile::encodeName(path).toStdString());
}

QColor QtColor(COLORREF color) {
    return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
            static_cast<int>(color >> 16U & 0xFFU)};
}

COLORREF ColorOf(const QColor& color) {
    return static_cast<COLORREF>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace PLATFORM::detail
