// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/c_wnd.h>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Numbers = std::vector<unsigned int>;

// Records what it is sent, and answers with the message's number.
class Receiver : public CWnd {
public:
    Numbers Messages;
    std::function<void()> Action = [] {};

    Receiver() { EXPECT_TRUE(Create()); }

    LRESULT WindowProc(unsigned int message, WPARAM, LPARAM) override {
        Messages.push_back(message);
        Action();
        return static_cast<LRESULT>(message);
    }
};

bool DispatchOne() {
    MSG message;
    if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) == 0) {
        return false;
    }
    DispatchMessageA(&message);
    return true;
}

TEST(Messages, PostedMessagesWaitInTheirOrderUntilDispatchedAndSentOnesDoNot) {
    Receiver first;
    Receiver second;
    EXPECT_TRUE(first.PostMessage(1));
    EXPECT_TRUE(second.PostMessage(2));
    EXPECT_TRUE(first.PostMessage(3));
    EXPECT_EQ(first.SendMessage(4), 4);
    EXPECT_EQ(first.Messages, Numbers{4});
    while (DispatchOne()) {
    }
    EXPECT_EQ(first.Messages, (Numbers{4, 1, 3}));
    EXPECT_EQ(second.Messages, Numbers{2});
}

TEST(Messages, MessagesWaitForTheThreadThatMadeTheWindow) {
    Receiver window;
    std::thread other([&window] {
        EXPECT_FALSE(DispatchOne());
        EXPECT_EQ(window.SendMessage(6), 0);
        const MSG stray{window.GetSafeHwnd(), 5, 0, 0};
        EXPECT_EQ(DispatchMessageA(&stray), 0);
        EXPECT_TRUE(window.PostMessage(WM_USER, 8, -9));
        EXPECT_FALSE(DispatchOne());
    });
    MSG message;
    EXPECT_EQ(GetMessageA(&message, window.GetSafeHwnd(), 0, 0), 1);
    other.join();
    EXPECT_TRUE(window.Messages.empty());
    EXPECT_EQ(message.hwnd, window.GetSafeHwnd());
    EXPECT_EQ(message.wParam, 8U);
    EXPECT_EQ(message.lParam, -9);
    EXPECT_EQ(DispatchMessageA(&message), 1024);
}

TEST(Messages, AFilterTakesTheOldestThatFits) {
    Receiver first;
    Receiver second;
    first.PostMessage(1);
    first.PostMessage(2);
    second.PostMessage(2);
    MSG message;
    EXPECT_EQ(PeekMessageA(&message, second.GetSafeHwnd(), 0, 0, PM_NOREMOVE), 1);
    EXPECT_EQ(message.hwnd, second.GetSafeHwnd());
    EXPECT_EQ(PeekMessageA(&message, nullptr, 2, 3, PM_REMOVE), 1);
    EXPECT_EQ(message.hwnd, first.GetSafeHwnd());
    EXPECT_EQ(PeekMessageA(&message, first.GetSafeHwnd(), 4, 9, PM_REMOVE), 0);
    EXPECT_EQ(message.message, 2U);
    EXPECT_EQ(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE), 1);
    EXPECT_EQ(message.message, 1U);
}

TEST(Messages, AWindowThatIsGoneGetsNothingUntilMadeAnewUnderAnotherHandle) {
    Receiver window;
    const HWND handle = window.GetSafeHwnd();
    EXPECT_FALSE(window.Create());
    EXPECT_EQ(CWnd::FromHandle(handle), &window);
    window.PostMessage(1);
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_FALSE(window.PostMessage(1));
    EXPECT_TRUE(window.Create());
    EXPECT_FALSE(DispatchOne());
    EXPECT_EQ(CWnd::FromHandle(handle), nullptr);
    const MSG taken{handle, 2, 0, 0};
    EXPECT_EQ(DispatchMessageA(&taken), 0);
    EXPECT_EQ(PostMessageA(handle, 3, 0, 0), 0);
    EXPECT_EQ(PostMessageA(nullptr, 3, 0, 0), 0);
    MSG message;
    EXPECT_EQ(GetMessageA(&message, handle, 0, 0), -1) << "no message could ever come";
    EXPECT_EQ(GetMessageA(nullptr, nullptr, 0, 0), -1);
    EXPECT_TRUE(window.PostMessage(4));
    EXPECT_TRUE(DispatchOne());
    EXPECT_EQ(window.Messages, Numbers{4});
}

TEST(Messages, AWindowMayEndWhileItHandlesAMessage) {
    auto window = std::make_unique<Receiver>();
    window->Action = [&window] { window.reset(); };
    window->PostMessage(1);
    window->PostMessage(2);
    EXPECT_TRUE(DispatchOne());
    EXPECT_EQ(window, nullptr);
    EXPECT_FALSE(DispatchOne());
}

}  // namespace
