// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// A keyword of plot texts, as a table holds it.
class MARLIN_API CKeyword {
public:
    int m_RefCount = 0;  ///< How many uses of the keyword its table has counted.
    int m_Extra1 = 0;    ///< The host's; copied and otherwise left alone, as is the next one.
    int m_Extra2 = 0;
    std::string m_Value;
    std::string m_Key;  ///< The name, without the "%" around it; case and blanks count.
};
