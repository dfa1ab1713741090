// SPDX-License-Identifier: MIT
#include <marlin/base/help_provider.h>
#include <marlin/base/start_up.h>
#include <marlin/base/version_gate.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/string_table.h>

#include <gtest/gtest.h>

namespace {

// Asked before the program's own start.
const bool loadedBeforeMain = MARLINSUITE::IsLoaded();

struct Restarted {
    ~Restarted() { MARLINSUITE::StartUp(); }
};

TEST(StartUp, TheLibraryIsLoadedBeforeItsHostStarts) {
    EXPECT_TRUE(loadedBeforeMain);
    EXPECT_TRUE(MARLINSUITE::IsLoaded());
}

TEST(StartUp, ARefusedVersionStopsBeforeEveryOtherStep) {
    const Restarted restarted;
    for (const unsigned int version : {0x03FFFFFFU, 0x05000000U, 0U, 0xFFFFFFFFU}) {
        EXPECT_EQ(MARLINSUITE::StartUp(version), (MARLINSUITE::StartUpSteps{false, false, false}));
        EXPECT_FALSE(MARLINSUITE::IsLoaded());
    }
    EXPECT_EQ(MARLINSUITE::StartUp(), (MARLINSUITE::StartUpSteps{true, true, true}));
    EXPECT_TRUE(MARLINSUITE::IsLoaded());
}

TEST(StartUp, ShuttingDownEndsTheRegistration) {
    const Restarted restarted;
    MARLINSUITE::ShutDown();
    EXPECT_FALSE(MARLINSUITE::IsLoaded());
}

TEST(VersionGate, MajorVersionFourIsAccepted) {
    EXPECT_TRUE(CheckDllVersion(0x04010007, "a.cpp", "now"));
    EXPECT_TRUE(CheckDllVersion(0x04FFFFFF, nullptr, nullptr));
    EXPECT_FALSE(CheckDllVersion(0x14010007, "a.cpp", "now"));
}

TEST(ExtensionModule, AModuleIsRegisteredOnce) {
    int first = 0;
    int second = 0;
    AFX_EXTENSION_MODULE state;
    EXPECT_EQ(AfxInitExtensionModule(state, nullptr), 0);
    EXPECT_EQ(state.hModule, nullptr);
    EXPECT_EQ(AfxInitExtensionModule(state, reinterpret_cast<HMODULE>(&first)), 1);
    EXPECT_EQ(AfxInitExtensionModule(state, reinterpret_cast<HMODULE>(&second)), 1);
    EXPECT_EQ(state.hModule, reinterpret_cast<HMODULE>(&first));
    AfxTermExtensionModule(state);
    EXPECT_EQ(state.hModule, nullptr);
    EXPECT_EQ(state.bInitialized, 0);
}

TEST(ResourceModule, LoadingMakesTheLibrarysTextsCurrent) {
    static constexpr PLATFORM::StringResource other[] = {{9073, "Fehler"}};
    PLATFORM::StringTable::Set(other);
    CString text;
    EXPECT_FALSE(text.LoadString(9074));
    EXPECT_TRUE(text.LoadString(9073));
    EXPECT_STREQ(text, "Fehler");
    int module = 0;
    const auto handle = reinterpret_cast<HINSTANCE>(&module);
    EXPECT_FALSE(MARLINSUITE::LoadDLLResourceDLL(handle, nullptr));
    EXPECT_TRUE(text.LoadString(9073));
    EXPECT_STREQ(text, "Fehler");
    EXPECT_TRUE(MARLINSUITE::LoadDLLResourceDLL(handle, handle));
    EXPECT_TRUE(text.LoadString(9073));
    EXPECT_STREQ(text, "Error");
}

TEST(HelpProvider, HelpIsShownByTheHostsHandlerAlone) {
    HelpProvider& provider = HelpProvider::GetInstance();
    EXPECT_FALSE(provider.ShowHelpfile(nullptr));
    int calls = 0;
    provider.SetHandler([&](CWnd* window) {
        provider.SetHandler({});  // a handler may remove itself
        ++calls;
        return window == nullptr;
    });
    EXPECT_TRUE(provider.ShowHelpfile(nullptr));
    EXPECT_FALSE(provider.ShowHelpfile(nullptr));
    EXPECT_EQ(calls, 1);
    provider.SetHandler([](CWnd*) { return false; });
    EXPECT_FALSE(provider.ShowHelpfile(nullptr));
    provider.SetHandler({});
}

}  // namespace
