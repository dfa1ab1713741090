// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/box_requests.h>
#include <marlin/platform/windowing/dialog_user.h>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace PLATFORM {

/// The acts of a user who is played, and the boxes that were shown to the user. Acts of each kind
/// are done in the order given. A dialog or box beyond the last act ends with Cancel, or with No,
/// or with OK where it has no other button; from a menu nothing is chosen.
/// @code
/// PLATFORM::UserScript script;
/// script.InDialog([](PLATFORM::DialogUser& user) { user.Click(IDOK); });
/// script.AnswerMessage(IDYES);
/// script.AnswerFile("sheet.cdf");
/// assert(!script.IsDone());
/// @endcode
class MARLIN_API UserScript {
public:
    /// Acts in one dialog, which ends with Cancel where they leave it open.
    using DialogAct = std::function<void(DialogUser&)>;

    void InDialog(DialogAct act);
    /// The button that closes the next message box.
    void AnswerMessage(int button);
    /// The choice in the next box of the kind; `{}` cancels it.
    /// The item chosen from the next menu; 0 for none.
    void AnswerMenu(int item);
    void AnswerFile(std::optional<CString> path);
    void AnswerColor(std::optional<COLORREF> color);

    [[nodiscard]] const std::vector<MessageRequest>& Messages() const noexcept {
        return m_Messages;
    }
    [[nodiscard]] const std::vector<FileRequest>& Files() const noexcept { return m_Files; }
    [[nodiscard]] const std::vector<ColorRequest>& Colors() const noexcept { return m_Colors; }
    [[nodiscard]] const std::vector<MenuRequest>& Menus() const noexcept { return m_Menus; }
    /// True when no act is left.
    [[nodiscard]] bool IsDone() const noexcept;

    /// For window systems: takes the next act of each kind. Beyond the last one a dialog's act is
    /// empty.
    DialogAct NextAct();
    int NextMessage(const MessageRequest& request);
    int NextMenu(const MenuRequest& request);
    std::optional<CString> NextFile(const FileRequest& request);
    std::optional<COLORREF> NextColor(const ColorRequest& request);

private:
    std::deque<DialogAct> m_Acts;
    std::deque<int> m_Buttons;
    std::deque<int> m_Items;
    std::deque<std::optional<CString>> m_Paths;
    std::deque<std::optional<COLORREF>> m_ChosenColors;
    std::vector<MessageRequest> m_Messages;
    std::vector<MenuRequest> m_Menus;
    std::vector<FileRequest> m_Files;
    std::vector<ColorRequest> m_Colors;
};

}  // namespace PLATFORM
