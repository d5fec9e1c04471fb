# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev docs" makes the reference pages and the guides. ./dev sources this file and provides the functions
# need, step, die and build.

docs_packages='doxygen'

cmd_docs() {
    # shellcheck disable=SC2086 # the lists are to be split
    need $build_packages $docs_packages
    build dev morvane-docs
    rm -rf build/docs
    cp -R "build/dev$qt_suffix/docs/html" build/docs
    step "the pages start at $(pwd)/build/docs/index.html"
}
