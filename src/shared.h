// SPDX-License-Identifier: MIT
#pragma once

// Every public class of the library, the Qt part excepted.

#include <marlin/base/color_table.h>
#include <marlin/base/crc32.h>
#include <marlin/base/crc_checksum.h>
#include <marlin/base/data_search.h>
#include <marlin/base/error_string.h>
#include <marlin/base/file_name.h>
#include <marlin/base/file_object.h>
#include <marlin/base/file_replacement.h>
#include <marlin/base/format_string.h>
#include <marlin/base/help_provider.h>
#include <marlin/base/marlin_string.h>
#include <marlin/base/math.h>
#include <marlin/base/number_text.h>
#include <marlin/base/palette_import.h>
#include <marlin/base/start_up.h>
#include <marlin/base/text_functions.h>
#include <marlin/base/version_gate.h>
#include <marlin/color/dxf_color.h>
#include <marlin/color/dxf_color_table.h>
#include <marlin/color/hsv_color.h>
#include <marlin/color/rgb_color.h>
#include <marlin/contours/contour_definition_list.h>
#include <marlin/contours/contour_info.h>
#include <marlin/platform/export.h>
#include <marlin/platform/kernel/extension_module.h>
#include <marlin/platform/text/ascii.h>
#include <marlin/platform/text/c_string.h>
#include <marlin/platform/text/code_page.h>
#include <marlin/platform/text/string_table.h>
#include <marlin/records/bias_info.h>
#include <marlin/records/dxf_info.h>
#include <marlin/records/line_info.h>
#include <marlin/records/map_info.h>
#include <marlin/records/sun_illumination_info.h>
#include <marlin/resources/messages.h>
#include <marlin/settings/crc_file.h>
#include <marlin/settings/file_checksum.h>
#include <marlin/settings/hashed_string.h>
#include <marlin/settings/ini_file.h>
#include <marlin/settings/rare_text.h>
#include <marlin/settings/section.h>
#include <marlin/settings/section_key.h>
