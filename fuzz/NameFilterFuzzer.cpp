// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Name filters, compared with the expressions that define their meaning.
#include "dialogs/native/LiteralNameFilter.h"
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/dialogs/native/NameFilterText_p.h"

using morvane::fuzz::require;
using morvane::ui::extensionOfNameFilter;
using morvane::ui::FileTypeText;
using morvane::ui::splitNameFilter;
using morvane::ui::splitNameFilters;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string filter = morvane::fuzz::FuzzInput(data, size).rest();
    const FileTypeText split = splitNameFilter(filter);
    const std::string extension = extensionOfNameFilter(filter);
    const QStringList filters = splitNameFilters(filter);
    if (size <= 512) {
        require(split == morvane::test::splitByExpression(filter), "description and patterns are those of the rule");
        require(extension == morvane::test::extensionByExpression(filter), "the extension is that of the rule");
    }
    require(filters == morvane::test::splitFiltersLiterally(morvane::fuzz::fromUtf8(filter)), "filters split at ;;");
    return 0;
}
