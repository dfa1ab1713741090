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

void UserScript::AnswerFile(std::optional<CString> path) {
    m_Paths.push_back(std::move(path));
}

void UserScript::AnswerColor(std::optional<COLORREF> color) {
    m_ChosenColors.push_back(color);
}

bool UserScript::IsDone() const noexcept {
    return m_Acts.empty() && m_Buttons.empty() && m_Paths.empty() && m_ChosenColors.empty();
}

UserScript::DialogAct UserScript::NextAct() {
    return Next(m_Acts, DialogAct());
}

int UserScript::NextMessage(const MessageRequest& request) {
    m_Messages.push_back(request);
    // The answers that change least.
    return Next(m_Buttons, (request.Type & MB_YESNO) != 0 ? IDNO : IDOK);
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
