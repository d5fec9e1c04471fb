// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A file name and a name filter, one on each line, compared with the expressions that define the extension.
#include "dialogs/save/LiteralExtensionRule.h"
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/dialogs/save/SaveFileExtension_p.h"

using morvane::ui::applyFilterExtension;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::FuzzInput input(data, size);
    const std::string filename = input.line();
    const std::string filter = input.rest();
    morvane::fuzz::require(
        applyFilterExtension(filename, filter) == morvane::test::applyExtensionByExpressions(filename, filter),
        "the name is that of the rule");
    return 0;
}
