// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/user_script.h>
#include <marlin/platform/windowing/windowing_constants.h>

#include <utility>

namespace PLATFORM {

namespace {

template <typename Step>
Step Next(std::deque<Step>& steps, Step otherwise) {
    if (steps.empty()) {
        return otherwise;
    }
    Step step = std::move(steps.front());
    steps.pop_front();
    return step;
}

}  // namespace

void UserScript::InDialog(DialogAct act) {
    m_Acts.push_back(std::move(act));
}

void UserScript::AnswerMessage(int button) {
    m_Buttons.push_back(button);
}

void UserScript::AnswerMenu(int item) {
    m_Items.push_back(item);
}

void UserScript::AnswerFile(std::optional<CString> path) {
    m_Paths.push_back(std::move(path));
}

void UserScript::AnswerColor(std::optional<COLORREF> color) {
    m_ChosenColors.push_back(color);
}

bool UserScript::IsDone() const noexcept {
    return m_Acts.empty() && m_Buttons.empty() && m_Items.empty() && m_Paths.empty() &&
           m_ChosenColors.empty();
}

UserScript::DialogAct UserScript::NextAct() {
    return Next(m_Acts, DialogAct());
}

int UserScript::NextMessage(const MessageRequest& request) {
    m_Messages.push_back(request);
    // The answers that change least.
    const UINT buttons = request.Type & 0x0FU;
    return Next(m_Buttons, buttons == MB_YESNO         ? IDNO
                           : buttons == MB_YESNOCANCEL ? IDCANCEL
                                                       : IDOK);
}

int UserScript::NextMenu(const MenuRequest& request) {
    m_Menus.push_back(request);
    return Next(m_Items, 0);
}

std::optional<CString> UserScript::NextFile(const FileRequest& request) {
    m_Files.push_back(request);
    return Next(m_Paths, std::optional<CString>());
}

std::optional<COLORREF> UserScript::NextColor(const ColorRequest& request) {
    m_Colors.push_back(request);
    return Next(m_ChosenColors, std::optional<COLORREF>());
}

}  // namespace PLATFORM
