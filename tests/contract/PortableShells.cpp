// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/PortableShells.h"

namespace morvane::test {

ui::ComPtr<IShellItemArray> PortableShellContract::chosenArray()
{
    ui::ComPtr<IShellItemArray> items;
    prepare();
    setFileName(QStringLiteral("a.txt"));
    EXPECT_EQ(show([](ShellUser& user) { user.pressAccept(); }), S_OK);
    EXPECT_EQ(dialog.query<IFileOpenDialog>()->GetResults(items.put()), S_OK);
    return items;
}

const std::vector<NamedShellDriver>& portableShells()
{
    static const std::vector<NamedShellDriver> shells{
        {"widgets", &makeWidgetShellDriver}, {"recording", &makeRecordingShellDriver}};
    return shells;
}

std::string nameOf(const ::testing::TestParamInfo<NamedShellDriver>& tested)
{
    return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Shells, ShellContract, ::testing::ValuesIn(portableShells()), nameOf);
INSTANTIATE_TEST_SUITE_P(Shells, PortableShellContract, ::testing::ValuesIn(portableShells()), nameOf);

} // namespace morvane::test
