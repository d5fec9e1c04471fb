#pragma once

#include <vector>

namespace gallery {

class Page;

/** Makes every page, in the order of the list; the caller gives them a parent. */
std::vector<Page*> makePages();

} // namespace gallery
