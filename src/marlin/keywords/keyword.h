// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <string>

/// A keyword of plot texts, as a table holds it.
class MARLIN_API CKeyword {
public:
    int m_RefCount = 0;   ///< The uses of the keyword that its table has counted.
    int m_Extra1 = 0;     ///< The host's, as the next one; the library only copies them.
    int m_Extra2 = 0;     ///< The host's.
    std::string m_Value;  ///< What the host draws in place of the keyword.
    std::string m_Key;    ///< The name, without the "%" around it; case and blanks count.
};
