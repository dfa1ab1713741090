// SPDX-License-Identifier: MIT
#include <marlin/settings/rare_text.h>

constinit const std::string RareText::emptyText;
