// SPDX-License-Identifier: MIT
#pragma once

#include "dialog_test.h"
#include "support/temporary_folder.h"
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/dialogs/contour_editor.h>

#include <cstdlib>
#include <filesystem>

/// An editor opened on a file, with a data folder of its own.
class EditorTest : public DialogTest {
protected:
    using Definition = ContourDefinitionList::ContourDefInfo;

    EditorTest() {
        std::filesystem::create_directory(m_Data.File("contours"));
        ::setenv("MARLIN_DATA_DIR", m_Data.File("").c_str(), 1);
    }
    ~EditorTest() override { ::unsetenv("MARLIN_DATA_DIR"); }

    /// Opens the editor on a file with these definitions; returns how it ended.
    int Edit(const std::vector<Definition>& definitions, const Act& act) {
        m_Path = m_Folder.File("sheet.cdf");
        ContourDefinitionList list;
        for (const Definition& definition : definitions) {
            list.Add(definition);
        }
        EXPECT_TRUE(definitions.empty() || list.Save(m_Path.c_str()));
        return Run(m_Path, act);
    }
    /// The same with the levels 5, 10 and 20.
    int EditThree(const Act& act) { return Edit({At(5), At(10), At(20)}, act); }

    int Run(const std::string& path, const Act& act) {
        CContourEditor editor(nullptr);
        editor.FileName(CString(path.c_str()));
        InDialog(act);
        return editor.DoModal();
    }

    /// Confirms the next properties dialog with these texts; an empty one is not typed.
    void Confirm(const std::string& level, const std::string& width = "") const {
        InDialog([level, width](Screen& screen) {
            if (!level.empty()) {
                EXPECT_TRUE(screen.User.Type(CONTROL_LEVEL, level.c_str()));
            }
            if (!width.empty()) {
                EXPECT_TRUE(screen.User.Type(CONTROL_LINE_WIDTH, width.c_str()));
            }
            EXPECT_TRUE(screen.User.Click(IDOK));
        });
    }
    /// Confirms the next generation dialog.
    void ConfirmRange(const char* lowest, const char* highest, const char* interval) const {
        InDialog([=](Screen& screen) {
            EXPECT_TRUE(screen.User.Type(CONTROL_LOWEST_LEVEL, lowest));
            EXPECT_TRUE(screen.User.Type(CONTROL_HIGHEST_LEVEL, highest));
            EXPECT_TRUE(screen.User.Type(CONTROL_INTERVAL, interval));
            EXPECT_TRUE(screen.User.Click(IDOK));
        });
    }

    [[nodiscard]] static Definition At(double level) {
        Definition definition;
        definition.Level = level;
        return definition;
    }
    [[nodiscard]] static std::vector<double> LevelsIn(const std::string& path) {
        ContourDefinitionList list;
        list.Load(path.c_str());
        std::vector<double> levels;
        for (int index = 0; index < list.NumContours(); ++index) {
            levels.push_back(list[index].Level);
        }
        return levels;
    }
    /// The boxes shown, each as "caption: text".
    [[nodiscard]] Texts Messages() const {
        Texts texts;
        for (const PLATFORM::MessageRequest& message : Script().Messages()) {
            texts.push_back(std::string(message.Caption) + ": " + std::string(message.Text));
        }
        return texts;
    }

    const TemporaryFolder m_Data;
    const TemporaryFolder m_Folder;
    std::string m_Path;
};
