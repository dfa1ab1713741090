// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/headless_window_system.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// A window system with a person before it, as the tests need it.
class Stage {
public:
    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    virtual ~Stage() = default;

    [[nodiscard]] virtual PLATFORM::WindowSystem& System() = 0;
    [[nodiscard]] virtual PLATFORM::UserScript& Script() = 0;
    [[nodiscard]] virtual COLORREF FacePixel(HWND button, int x, int y) = 0;
    [[nodiscard]] virtual SIZE FaceSize(HWND button) = 0;
    [[nodiscard]] virtual COLORREF SwatchPixel(HWND list, int row, int x, int y) = 0;
    [[nodiscard]] virtual bool IsInView(HWND list, int row) = 0;
};

struct StageKind {
    std::string Name;
    std::function<std::unique_ptr<Stage>()> Make;

    friend std::ostream& operator<<(std::ostream& stream, const StageKind& kind) {
        return stream << kind.Name;
    }
};

/// The window systems of this program.
[[nodiscard]] std::vector<StageKind> StageKinds();

class HeadlessStage final : public Stage {
public:
    PLATFORM::WindowSystem& System() override { return m_System; }
    PLATFORM::UserScript& Script() override { return m_System.Script(); }
    COLORREF FacePixel(HWND button, int x, int y) override {
        return m_System.FacePixel(button, x, y);
    }
    SIZE FaceSize(HWND button) override { return m_System.FaceSize(button); }
    COLORREF SwatchPixel(HWND list, int row, int x, int y) override {
        return m_System.SwatchPixel(list, row, x, y);
    }
    bool IsInView(HWND list, int row) override { return m_System.RowInView(list) == row; }

private:
    PLATFORM::HeadlessWindowSystem m_System;
};
