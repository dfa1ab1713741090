// SPDX-License-Identifier: MIT
#include <marlin/base/crc_checksum.h>
#include <marlin/platform/text/c_string.h>

#include <string>

#include <gtest/gtest.h>

namespace {

CString Load(unsigned int id) {
    CString text("before");
    const bool found = text.LoadString(id);
    EXPECT_EQ(found, !text.IsEmpty());
    return text;
}

// Loaded from a static constructor.
const CString loadedBeforeMain = Load(9078);

// Those that the suite's programs share; from 9090 on they are the library's own. Pinned by the
// CRC-32 of "9064:Annotation\n9065:Width\n" and so on.
TEST(StringTable, HasItsNineteenTexts) {
    EXPECT_STREQ(loadedBeforeMain, "Save changes?");
    CRCChecksum checksum;
    int numTexts = 0;
    for (unsigned int id = 0; id < 9'090; ++id) {
        if (const CString text = Load(id); !text.IsEmpty()) {
            checksum += std::to_string(id) + ":" + text.GetString() + "\n";
            ++numTexts;
        }
    }
    EXPECT_EQ(numTexts, 19);
    EXPECT_EQ(checksum.Value(), 0xD85C6FA0U);
}

}  // namespace
