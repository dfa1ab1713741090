// SPDX-License-Identifier: MIT
#include <marlin/base/help_provider.h>
#include <marlin/base/start_up.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/string_table.h>

#include <gtest/gtest.h>

namespace {

// Asked before the program's own start.
const bool loadedBeforeMain = MARLINSUITE::IsLoaded();

TEST(StartUp, ARefusedVersionStopsBeforeEveryOtherStep) {
    EXPECT_TRUE(loadedBeforeMain);
    for (const unsigned int version : {0x03FFFFFFU, 0x05000000U, 0x14010007U, 0U, 0xFFFFFFFFU}) {
        EXPECT_EQ(MARLINSUITE::StartUp(version), (MARLINSUITE::StartUpSteps{false, false, false}));
        EXPECT_FALSE(MARLINSUITE::IsLoaded());
    }
    EXPECT_EQ(MARLINSUITE::StartUp(), (MARLINSUITE::StartUpSteps{true, true, true}));
    EXPECT_TRUE(MARLINSUITE::IsLoaded());
    MARLINSUITE::ShutDown();
    EXPECT_FALSE(MARLINSUITE::IsLoaded());
    EXPECT_TRUE(MARLINSUITE::StartUp(0x04FFFFFFU).Done());
}

TEST(ExtensionModule, AModuleIsRegisteredOnce) {
    int modules[2] = {};
    AFX_EXTENSION_MODULE state;
    EXPECT_EQ(AfxInitExtensionModule(state, nullptr), 0);
    EXPECT_EQ(state.hModule, nullptr);
    for (int& module : modules) {
        EXPECT_EQ(AfxInitExtensionModule(state, reinterpret_cast<HMODULE>(&module)), 1);
        EXPECT_EQ(state.hModule, reinterpret_cast<HMODULE>(&modules[0]));
    }
    AfxTermExtensionModule(state);
    EXPECT_EQ(state.hModule, nullptr);
    EXPECT_EQ(state.bInitialized, 0);
}

TEST(ResourceModule, LoadingWithBothModulesMakesTheLibrarysTextsCurrent) {
    static constexpr PLATFORM::StringResource other[] = {{9073, "Fehler"}};
    PLATFORM::StringTable::Set(other);
    int module = 0;
    const auto handle = reinterpret_cast<HINSTANCE>(&module);
    EXPECT_FALSE(MARLINSUITE::LoadDLLResourceDLL(handle, nullptr));
    EXPECT_FALSE(MARLINSUITE::LoadDLLResourceDLL(nullptr, handle));
    CString text;
    EXPECT_FALSE(text.LoadString(9074));
    EXPECT_TRUE(text.LoadString(9073));
    EXPECT_STREQ(text, "Fehler");
    EXPECT_TRUE(MARLINSUITE::LoadDLLResourceDLL(handle, handle));
    EXPECT_TRUE(text.LoadString(9073));
    EXPECT_STREQ(text, "Error");
}

TEST(HelpProvider, HelpIsShownByTheHostsHandlerAlone) {
    HelpProvider& provider = HelpProvider::GetInstance();
    EXPECT_FALSE(provider.ShowHelpfile(nullptr));
    provider.SetHandler([&](CWnd* window) {
        provider.SetHandler({});  // a handler may remove itself
        return window == nullptr;
    });
    EXPECT_TRUE(provider.ShowHelpfile(nullptr));
    EXPECT_FALSE(provider.ShowHelpfile(nullptr));
}

}  // namespace
