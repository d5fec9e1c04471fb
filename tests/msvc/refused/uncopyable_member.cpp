// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: call to implicitly-deleted copy constructor
// Exporting a class exports its copy constructor, too, so it is compiled. Other compilers only compile it when it is
// used.
#include <map>
#include <memory>

class __declspec(dllexport) Registry
{
public:
#ifdef FAULT
    Registry() = default;
#else
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
#endif

private:
    std::map<int, std::unique_ptr<int>> entries;
};
