// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_user.h>
#include <marlin/platform/windowing/window_requests.h>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace PLATFORM {

/// What a person is going to do, each kind in the order given, and what was shown to them. A
/// dialog or box beyond the script ends with Cancel, or with No, or with OK where it has no other
/// button.
class MARLIN_API UserScript {
public:
    /// What is done in one dialog; where it leaves the dialog open, it ends with Cancel.
    using DialogAct = std::function<void(DialogUser&)>;

    void InDialog(DialogAct act);
    void AnswerMessage(int button);
    /// Chooses a file, or cancels with nothing.
    void AnswerFile(std::optional<CString> path);
    void AnswerColor(std::optional<COLORREF> color);

    [[nodiscard]] const std::vector<MessageRequest>& Messages() const noexcept {
        return m_Messages;
    }
    [[nodiscard]] const std::vector<FileRequest>& Files() const noexcept { return m_Files; }
    [[nodiscard]] const std::vector<ColorRequest>& Colors() const noexcept { return m_Colors; }
    /// Whether all that was to be done has been done.
    [[nodiscard]] bool IsDone() const noexcept;

    /// For window systems: the next of each kind. The act is empty beyond the script's end.
    DialogAct NextAct();
    int NextMessage(const MessageRequest& request);
    std::optional<CString> NextFile(const FileRequest& request);
    std::optional<COLORREF> NextColor(const ColorRequest& request);

private:
    std::deque<DialogAct> m_Acts;
    std::deque<int> m_Buttons;
    std::deque<std::optional<CString>> m_Paths;
    std::deque<std::optional<COLORREF>> m_ChosenColors;
    std::vector<MessageRequest> m_Messages;
    std::vector<FileRequest> m_Files;
    std::vector<ColorRequest> m_Colors;
};

}  // namespace PLATFORM
