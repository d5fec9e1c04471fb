// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Pasting a block into a table, compared with a loop that splits the text at tabs and line feeds and writes the cells,
// and with a loop that has the texts already.

#include "support/ProcessorTime.h"
#include "support/Ratio.h"
#include "ui/qt/util/TablePasteHandler.h"

#include <QStandardItemModel>
#include <QTableView>
#include <QUndoStack>

#include <array>
#include <memory>
#include <vector>

namespace {

constexpr int rows = 1000;
constexpr int columns = 1000;

/** A shown table with a million cells. Both ways write into the same one. */
struct Table
{
    Table() : model(rows, columns), handler(view)
    {
        view.setModel(&model);
        view.resize(800, 600);
        view.show();
        view.setCurrentIndex(model.index(0, 0));
        for (std::size_t kind = 0; kind < texts.size(); ++kind) {
            makeTexts(kind);
            // The first time, the model makes its items.
            write(kind);
        }
    }

    void makeTexts(std::size_t kind)
    {
        for (int cell = 0; cell < rows * columns; ++cell) {
            texts[kind].push_back(QString::number((cell * 37 + static_cast<int>(kind)) % 100000 / 100.0, 'f', 2));
            blocks[kind] += texts[kind].back() + (cell % columns == columns - 1 ? '\n' : '\t');
        }
    }

    void write(std::size_t kind)
    {
        auto text = texts[kind].cbegin();
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                model.setData(model.index(row, column), *text++, Qt::EditRole);
            }
        }
    }

    std::array<std::vector<QString>, 2> texts;
    std::array<QString, 2> blocks;
    QStandardItemModel model;
    QTableView view;
    morvane::ui::TablePasteHandler handler;
};

Table& table()
{
    // Never deleted: it would outlive the application object.
    static auto* const made = new Table;
    return *made;
}

/** Each measurement changes all cells: a model does nothing for a text that a cell has already. */
template <typename Action>
void measure(benchmark::State& state, Action action)
{
    static std::size_t kind = 0;
    table();
    for (auto _ : state) {
        const double start = morvane::bench::processorSeconds();
        action(++kind % 2);
        state.SetIterationTime(morvane::bench::processorSeconds() - start);
    }
}

void pasteBlock(benchmark::State& state)
{
    measure(state, [&state](std::size_t kind) {
        if (!table().handler.paste(table().blocks[kind])) {
            state.SkipWithError("the block was refused");
        }
    });
}

/** The whole work: each paste is a step that can be undone. */
void pasteBlockWithUndo(benchmark::State& state)
{
    QUndoStack stack;
    stack.setUndoLimit(1);
    table().handler.setUndoStack(&stack);
    pasteBlock(state);
    table().handler.setUndoStack(nullptr);
}

void splitAndSetDataLoop(benchmark::State& state)
{
    measure(state, [](std::size_t kind) {
        const QStringList lines = table().blocks[kind].split('\n', Qt::SkipEmptyParts);
        for (int row = 0; row < lines.size(); ++row) {
            const QStringList texts = lines[row].split('\t');
            for (int column = 0; column < texts.size(); ++column) {
                table().model.setData(table().model.index(row, column), texts[column], Qt::EditRole);
            }
        }
    });
}

void setDataLoop(benchmark::State& state)
{
    measure(state, [](std::size_t kind) { table().write(kind); });
}

MORVANE_BENCHMARK(pasteBlock)->UseManualTime()->Iterations(1)->Repetitions(31);
MORVANE_BENCHMARK(pasteBlockWithUndo)->UseManualTime()->Iterations(1)->Repetitions(31);
MORVANE_BENCHMARK(splitAndSetDataLoop)->UseManualTime()->Iterations(1)->Repetitions(31);
MORVANE_BENCHMARK(setDataLoop)->UseManualTime()->Iterations(1)->Repetitions(31);

MORVANE_RATIO(paste_block_1m, pasteBlockWithUndo, splitAndSetDataLoop, 1.3);
MORVANE_RATIO(paste_block_1m_no_undo, pasteBlock, splitAndSetDataLoop, 0);
MORVANE_RATIO(paste_block_1m_texts_there, pasteBlockWithUndo, setDataLoop, 0);

} // namespace
