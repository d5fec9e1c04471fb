// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Reading a block of cells from the clipboard, compared with reading it by patterns, and writing cells that are read
// again.
#include "support/FuzzInput.h"
#include "support/Require.h"
#include "ui/qt/util/CellBlock_p.h"
#include "util/LiteralCellBlock.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using morvane::fuzz::require;
    morvane::fuzz::FuzzInput input(data, size);
    const QString text = morvane::fuzz::fromUtf8(input.rest());
    const morvane::ui::CellBlock block = morvane::ui::readCellBlock(text);
    require(block == morvane::test::literalCellBlock(text), "the cells are those that the patterns find");

    QString again;
    for (const auto& row : block) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            again += (column > 0 ? "\t" : "") + morvane::ui::quotedWhereNeeded(row[column].toString());
        }
        again += '\n';
    }
    require(morvane::ui::readCellBlock(again) == block, "the cells are read again as they were written");

    const QString quoted = morvane::ui::quotedWhereNeeded(text);
    const morvane::ui::CellBlock one{{QVariant(text)}};
    require(morvane::ui::readCellBlock(quoted + '\n') == one, "any text can be one cell");
    return 0;
}
