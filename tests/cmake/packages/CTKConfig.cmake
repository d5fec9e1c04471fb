# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

include(${CMAKE_CURRENT_LIST_DIR}/CTKTargets.cmake)
get_filename_component(CTK_INCLUDE_DIRS ${CMAKE_CURRENT_LIST_DIR}/../../../include/ctk-0.1 ABSOLUTE)
