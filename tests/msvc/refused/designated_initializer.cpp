// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wc++20-designator
struct Point
{
    int x;
    int y;
};

Point origin()
{
#ifdef FAULT
    return Point{.x = 0, .y = 0};
#else
    return Point{0, 0};
#endif
}
