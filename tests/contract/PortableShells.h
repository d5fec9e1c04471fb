// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/ShellContract.h"

namespace morvane::test {

/**
 * What only our own Shells promise beyond the published interfaces: how they handle invalid arguments, and what they do
 * not implement.
 */
class PortableShellContract : public ShellContract
{
protected:
    static ui::ShellString text(const char* utf8) { return ui::toShellString(QString::fromUtf8(utf8)); }
    /** The array with the one path that a run has chosen. */
    ui::ComPtr<IShellItemArray> chosenArray();
};

/** Our own Shells, which exist on every platform. */
const std::vector<NamedShellDriver>& portableShells();
std::string nameOf(const ::testing::TestParamInfo<NamedShellDriver>& tested);

} // namespace morvane::test
