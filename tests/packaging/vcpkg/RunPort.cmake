# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Runs the port the way vcpkg does: -DFEATURES=core,... -DWORK_DIR=... [-DCONFIGURE_ONLY=ON]. The package is in WORK_DIR/package
# then, and what the port called is in WORK_DIR/calls.txt.
cmake_minimum_required(VERSION 3.25)
cmake_path(SET SOURCE_TREE NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../..)
string(REPLACE "," ";" FEATURES ${FEATURES})
set(PORT morvane)
set(CURRENT_PORT_DIR ${SOURCE_TREE}/packaging/vcpkg/ports/morvane)
set(CURRENT_BUILDTREES_DIR ${WORK_DIR}/buildtree)
set(CURRENT_PACKAGES_DIR ${WORK_DIR}/package)
set(TARGET_TRIPLET stand-in)
set(RECORD ${WORK_DIR}/calls.txt)
file(REMOVE_RECURSE ${WORK_DIR})
file(WRITE ${RECORD} "")
include(${CMAKE_CURRENT_LIST_DIR}/StandIns.cmake)
include(${CURRENT_PORT_DIR}/portfile.cmake)
