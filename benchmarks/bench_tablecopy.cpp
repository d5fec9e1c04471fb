// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Copying a table's selection, compared with the simplest way to make the same text and with reading the cells only.

#include "support/Ratio.h"
#include "ui/qt/util/TableCopyHandler.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTableView>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <utility>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

/**
 * Readings that share a thousand texts. Such a model costs very little, so the time of the copying shows. With a
 * million different texts, most of the time would be waiting for memory.
 */
class Readings : public QAbstractTableModel
{
public:
    Readings(int rows, int columns) : m_rows(rows), m_columns(columns)
    {
        std::mt19937 engine(7);
        std::uniform_real_distribution<double> reading(-50, 950);
        std::generate(m_texts.begin(), m_texts.end(), [&] { return QString::number(reading(engine), 'f', 2); });
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_rows; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_columns; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || role != Qt::DisplayRole) {
            return QVariant();
        }
        return m_texts[static_cast<std::size_t>(index.row() * m_columns + index.column()) % m_texts.size()];
    }

private:
    int m_rows;
    int m_columns;
    std::array<QString, 1000> m_texts;
};

/** A table with a selection and a copy handler. */
struct Table
{
    Table(int rows, int columns) : model(rows, columns), handler(view) { view.setModel(&model); }

    Readings model;
    QTableView view;
    morvane::ui::TableCopyHandler handler;
};

Table& block()
{
    static const std::unique_ptr<Table> table = [] {
        auto made = std::make_unique<Table>(1000, 1000);
        made->view.selectAll();
        return made;
    }();
    return *table;
}

Table& scattered()
{
    static const std::unique_ptr<Table> table = [] {
        auto made = std::make_unique<Table>(100000, 8);
        std::vector<int> rows(100000);
        std::generate(rows.begin(), rows.end(), [row = 0]() mutable { return row++; });
        std::mt19937 engine(11);
        std::shuffle(rows.begin(), rows.end(), engine);
        QItemSelection selection;
        for (int i = 0; i < 5000; ++i) {
            selection.append(QItemSelectionRange(made->model.index(rows[static_cast<std::size_t>(i)], i % 8)));
        }
        made->view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        return made;
    }();
    return *table;
}

void copySortedIndexes(const QTableView& view)
{
    QModelIndexList indexes = view.selectionModel()->selectedIndexes();
    std::sort(indexes.begin(), indexes.end());
    QString text;
    QModelIndex previous;
    for (const QModelIndex& index : std::as_const(indexes)) {
        if (previous.isValid()) {
            text += index.row() != previous.row() ? QLatin1Char('\n') : QLatin1Char('\t');
        }
        text += view.model()->data(index, Qt::DisplayRole).toString();
        previous = index;
    }
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void blockCopy(benchmark::State& state)
{
    Table& table = block();
    for (auto _ : state) {
        table.handler.copyToClipboard();
    }
}

void blockSortedIndexes(benchmark::State& state)
{
    const Table& table = block();
    for (auto _ : state) {
        copySortedIndexes(table.view);
    }
}

void blockBareReading(benchmark::State& state)
{
    const QAbstractItemModel& model = *block().view.model();
    for (auto _ : state) {
        QString text;
        for (int row = 0; row < 1000; ++row) {
            for (int column = 0; column < 1000; ++column) {
                text += model.data(model.index(row, column), Qt::DisplayRole).toString();
            }
        }
        benchmark::DoNotOptimize(text);
    }
}

void scatteredCopy(benchmark::State& state)
{
    Table& table = scattered();
    for (auto _ : state) {
        table.handler.copyToClipboard();
    }
}

void scatteredSortedIndexes(benchmark::State& state)
{
    const Table& table = scattered();
    for (auto _ : state) {
        copySortedIndexes(table.view);
    }
}

MORVANE_BENCHMARK(blockCopy);
MORVANE_BENCHMARK(blockSortedIndexes);
MORVANE_BENCHMARK(blockBareReading);
MORVANE_BENCHMARK(scatteredCopy);
MORVANE_BENCHMARK(scatteredSortedIndexes);

MORVANE_RATIO(copy_block_1m, blockCopy, blockBareReading, 1.5);
MORVANE_RATIO(copy_block_literal, blockCopy, blockSortedIndexes, 0.75);
MORVANE_RATIO(copy_scattered, scatteredCopy, scatteredSortedIndexes, 1.0);

#ifdef __GLIBC__

/** A figure of /proc/self/status in bytes, -1 where it cannot be read. */
double processMemory(const QByteArray& name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QFile::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith(name + ':')) {
                return line.mid(name.size() + 1).simplified().split(' ').value(0).toDouble() * 1024;
            }
        }
    }
    return -1;
}

/** By how many bytes the process grew at most during @p action; -1 when that is unknown. */
template <typename Action>
double peakMemoryOf(Action action)
{
    malloc_trim(0); // free memory inside the heap would hide what the action takes
    QFile resetPeak(QStringLiteral("/proc/self/clear_refs"));
    if (!resetPeak.open(QFile::WriteOnly | QFile::Unbuffered) || resetPeak.write("5") != 1) {
        return -1;
    }
    const double before = processMemory("VmRSS");
    action();
    return processMemory("VmHWM") - before;
}

/** The same in a new process, in which no earlier measurement has changed the state of the allocator. */
template <typename Action>
double peakMemoryInChild(Action action)
{
    int ends[2];
    if (pipe(ends) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        mallopt(M_MMAP_THRESHOLD, 128 * 1024);
        const double bytes = peakMemoryOf(action);
        _exit(write(ends[1], &bytes, sizeof bytes) == sizeof bytes ? 0 : 1);
    }
    close(ends[1]);
    double bytes = -1;
    const bool complete = child > 0 && read(ends[0], &bytes, sizeof bytes) == sizeof bytes;
    close(ends[0]);
    if (child > 0) {
        waitpid(child, nullptr, 0);
    }
    return complete ? bytes : -1;
}

/** Reports bytes instead of nanoseconds. */
void reportBytes(benchmark::State& state, double bytes)
{
    for (auto _ : state) {
        state.SetIterationTime(bytes * 1e-9);
    }
    if (bytes <= 0) {
        state.SkipWithError("the system does not tell the peak of the memory");
    }
}

void blockCopyPeakBytes(benchmark::State& state)
{
    Table& table = block();
    QGuiApplication::clipboard()->clear();
    reportBytes(state, peakMemoryInChild([&table] { table.handler.copyToClipboard(); }));
}

void blockSortedIndexesPeakBytes(benchmark::State& state)
{
    const Table& table = block();
    QGuiApplication::clipboard()->clear();
    reportBytes(state, peakMemoryInChild([&table] { copySortedIndexes(table.view); }));
}

void blockTextBytes(benchmark::State& state)
{
    block().handler.copyToClipboard();
    reportBytes(state, static_cast<double>(sizeof(QChar)) * QGuiApplication::clipboard()->text().size());
}

const auto* const bytesOfCopy = morvane::bench::interleaved(
    benchmark::RegisterBenchmark("blockCopyPeakBytes", &blockCopyPeakBytes)->UseManualTime()->Iterations(1));
const auto* const bytesOfSorting = morvane::bench::interleaved(
    benchmark::RegisterBenchmark("blockSortedIndexesPeakBytes", &blockSortedIndexesPeakBytes)
        ->UseManualTime()
        ->Iterations(1));
const auto* const bytesOfText = morvane::bench::interleaved(
    benchmark::RegisterBenchmark("blockTextBytes", &blockTextBytes)->UseManualTime()->Iterations(1));

MORVANE_RATIO(copy_memory, blockCopyPeakBytes, blockTextBytes, 3);
MORVANE_RATIO(copy_memory_sorted_indexes, blockSortedIndexesPeakBytes, blockTextBytes, 0);

#endif

} // namespace
