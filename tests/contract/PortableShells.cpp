#include "contract/ShellContract.h"

namespace morvane::test {

INSTANTIATE_TEST_SUITE_P(Shells, ShellContract,
    ::testing::Values(
        NamedShellDriver{"widgets", &makeWidgetShellDriver}, NamedShellDriver{"recording", &makeRecordingShellDriver}),
    [](const auto& tested) { return std::string(tested.param.name); });

} // namespace morvane::test
