// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The time from construction to the first painted frame, compared with Qt's own dialog in the same folder.

#include "support/Ratio.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

const char* const filters = "Data (*.dat *.csv);;All files (*)";

/** A folder of some files, the same one for every measurement. */
const QString& folder()
{
    static const QTemporaryDir directory;
    static const QString path = [] {
        for (int i = 0; i < 100; ++i) {
            QFile file(directory.filePath(QStringLiteral("run-%1.dat").arg(i)));
            file.open(QIODevice::WriteOnly);
        }
        return directory.path();
    }();
    return path;
}

QWidget& window()
{
    static QWidget* const shown = [] {
        auto* const widget = new QWidget;
        widget->show();
        QApplication::processEvents();
        return widget;
    }();
    return *shown;
}

void showFirstFrame(QFileDialog& dialog)
{
    QApplication::processEvents();
    if (dialog.grab().isNull()) {
        qFatal("nothing was painted");
    }
}

/** Finishes what a dialog leaves for later, so that it does not count for the next one. */
void settle(benchmark::State& state)
{
    state.PauseTiming();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    state.ResumeTiming();
}

void openExtendedDialog(benchmark::State& state)
{
    folder();
    window();
    for (auto _ : state) {
        {
            QExtendedFileDialog dialog(
                window(), "Open", folder().toStdString(), filters, "topic", QFileDialog::AcceptOpen);
            dialog.show();
            showFirstFrame(dialog);
            state.PauseTiming();
        }
        state.ResumeTiming();
        settle(state);
    }
}

void openPlainDialog(benchmark::State& state)
{
    folder();
    window();
    for (auto _ : state) {
        {
            QFileDialog dialog(&window(), QStringLiteral("Open"), folder(), QString::fromLatin1(filters));
            dialog.setOption(QFileDialog::DontUseNativeDialog);
            dialog.setAcceptMode(QFileDialog::AcceptOpen);
            dialog.setFileMode(QFileDialog::ExistingFile);
            dialog.show();
            showFirstFrame(dialog);
            state.PauseTiming();
        }
        state.ResumeTiming();
        settle(state);
    }
}

MORVANE_BENCHMARK(openExtendedDialog)->Iterations(3);
MORVANE_BENCHMARK(openPlainDialog)->Iterations(3);

MORVANE_RATIO(qtdialog_open, openExtendedDialog, openPlainDialog, 1.1);

} // namespace
