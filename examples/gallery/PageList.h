// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace gallery {

class Page;

/** Creates all pages, in the order of the list. The caller sets their parent. */
std::vector<Page*> makePages();

} // namespace gallery
