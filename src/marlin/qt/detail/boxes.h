// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/box_requests.h>

class QWidget;

namespace PLATFORM::detail {

// The boxes of `WindowSystem`, above a window or, with null, by themselves.

int ShowMessage(QWidget* parent, const MessageRequest& request);
int ShowMenu(QWidget* parent, const MenuRequest& request);
bool ChooseFile(QWidget* parent, const FileRequest& request, CString& path);
bool ChooseColor(QWidget* parent, const ColorRequest& request, COLORREF& color);

}  // namespace PLATFORM::detail
