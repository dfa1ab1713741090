// SPDX-License-Identifier: MIT
// A host whose global objects use all that the process has one of, to their very end, while a
// worker still runs. Exits with 0 when they got what they should.
#include <marlin/shared.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct Plot : UTL::Subscriber {
    void OnNotify(int message) override { Last = message; }
    int Last = 0;
};

struct Endless : ThreadObject {
    int Execute(const bool&) override {
        Thread inner;
        static_cast<void>(inner.MutexName());
        Began = true;
        Began.notify_all();
        return 1;
    }
    std::atomic<bool> Began{false};
};

const char* Fault(Plot& plot) {
    UTL::Observer::Get().Subscribe(&plot, "end");
    UTL::Observer::Get().Notify("end", 7);
    TextInfo style;
    style.SetFont("Liberation Sans");
    TextRectComp rects;
    const HANDLE mutex = CreateMutexA(nullptr, 0, "end");
    Thread thread;
    Plot local;
    CWnd window;
    window.Create();
    return plot.Last != 7                                          ? "observer"
           : !(rects(style, "Depth").width > 0.0)                  ? "fonts"
           : CListKeywords::Get().GetListKeyword("none")           ? "list keywords"
           : !PlotErrorReporter::Get().NoErrors("none")            ? "errors"
           : WaitForSingleObject(mutex, 0) != WAIT_OBJECT_0        ? "taking a mutex"
           : ReleaseMutex(mutex) != 1                              ? "releasing a mutex"
           : CloseHandle(mutex) != 1                               ? "closing a mutex"
           : thread.IsRunning() || !IsWindow(window.GetSafeHwnd()) ? "windows"
                                                                   : nullptr;
}

// Made before the library's objects are first used, and destroyed after that.
struct Global {
    Plot Subscriber;
    CFont Font;
    CWnd Window;
    ~Global() {
        if (const char* const fault = Fault(Subscriber)) {
            std::printf("a global object found fault with %s\n", fault);
            std::_Exit(1);
        }
    }
} global;

}  // namespace

int main() {
    global.Window.Create();
    global.Font.CreateFontA(100, 0, 0, 0, 400, 0, 0, 0, 0, 7, 16, 2, 0, "Liberation Sans");
    // Never destroyed, so that the worker outlives this function.
    static Thread& thread = *std::make_unique<Thread>().release();
    static Endless& work = *std::make_unique<Endless>().release();
    thread.SetCaller(&global.Window);
    if (Fault(global.Subscriber) || !thread.Start(&work)) {
        return 1;
    }
    work.Began.wait(false);
    return 0;
}
