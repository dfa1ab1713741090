// SPDX-License-Identifier: MIT
#include <marlin/base/help_provider.h>

HelpProvider& HelpProvider::GetInstance() {
    static HelpProvider instance;
    return instance;
}

bool HelpProvider::ShowHelpfile(CWnd* window) const {
    const Handler handler = m_Handler;  // which may replace itself while it runs
    return handler && handler(window);
}
