// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The time from exec() to the first painted frame of each dialog, in a folder of 50,000 files, compared with Qt's own
// dialog. The time from a key to the painted list of the filtering combo box with 1,000,000 entries.
#include "property/Property.h"
#include "support/Ratio.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <string>

namespace {

using namespace morvane::ui;

constexpr int fileCount = 50000;
constexpr int entryCount = 1000000;
const char* const filters = "Data (*.dat *.csv);;All files (*)";

const std::string& folder()
{
    static const QTemporaryDir directory;
    static const std::string path = [] {
        for (int i = 0; i < fileCount; ++i) {
            QFile file(directory.filePath(QStringLiteral("run-%1.dat").arg(i)));
            if (!file.open(QIODevice::WriteOnly)) {
                qFatal("the folder cannot be made");
            }
        }
        return directory.path().toStdString();
    }();
    return path;
}

QWidget& window()
{
    static QWidget* const shown = [] {
        auto* const widget = new QWidget;
        widget->show();
        // Deprecated since Qt 6.5; activateWindow() only asks the window system.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QApplication::setActiveWindow(widget);
        QT_WARNING_POP
        QApplication::processEvents();
        return widget;
    }();
    return *shown;
}

/** Looks at every event of the application and notes when the modal dialog has been painted for the first time. */
class FirstFrame : public QObject
{
public:
    FirstFrame() { qApp->installEventFilter(this); }

    void start()
    {
        m_seen = false;
        m_clock.start();
    }
    /** Seconds from start() to the end of the first frame. */
    double seconds() const { return static_cast<double>(m_nanoseconds) * 1e-9; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!m_seen && event->type() == QEvent::Paint && watched == QApplication::activeModalWidget()) {
            m_seen = true;
            // The children are painted within the same event loop turn, and what is queued comes after it.
            QMetaObject::invokeMethod(
                watched, [this, watched] { finish(static_cast<QDialog*>(watched)); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void finish(QDialog* dialog)
    {
        m_nanoseconds = m_clock.nsecsElapsed();
        dialog->reject();
    }

    QElapsedTimer m_clock;
    qint64 m_nanoseconds = 0;
    bool m_seen = true;
};

void measure(benchmark::State& state, const std::function<void(FirstFrame&)>& run)
{
    folder();
    window();
    FirstFrame frame;
    for (auto _ : state) {
        run(frame);
        state.SetIterationTime(frame.seconds());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

void plainDialog(benchmark::State& state)
{
    measure(state, [](FirstFrame& frame) {
        QFileDialog dialog(&window(), QStringLiteral("Open"), QString::fromStdString(folder()), filters);
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setFileMode(QFileDialog::ExistingFile);
        frame.start();
        dialog.exec();
    });
}

void extendedDialog(benchmark::State& state)
{
    measure(state, [](FirstFrame& frame) {
        QExtendedFileDialog dialog(window(), "Open", folder(), filters, "", QFileDialog::AcceptOpen);
        frame.start();
        dialog.exec();
    });
}

void nativeDialog(benchmark::State& state)
{
    WidgetShell shell(WidgetShell::Appearance::AlwaysWidgets);
    const ShellOverride shellOverride(shell);
    measure(state, [](FirstFrame& frame) {
        frame.start();
        ExtendedWinFileDialog dialog(window(), "Open", folder(), filters, "", QFileDialog::AcceptOpen, false);
        dialog.exec();
    });
}

/** With as many controls of each kind; in a small folder, so that the controls count. */
void nativeDialogWithControls(benchmark::State& state, int ofEachKind)
{
    static const QTemporaryDir small;
    WidgetShell shell(WidgetShell::Appearance::AlwaysWidgets);
    const ShellOverride shellOverride(shell);
    measure(state, [ofEachKind](FirstFrame& frame) {
        const auto chosen = boost::make_shared<morvane::Property<int>>(0);
        const auto text = boost::make_shared<morvane::Property<std::string>>("text");
        frame.start();
        ExtendedWinFileDialog dialog(
            window(), "Open", small.path().toStdString(), filters, "", QFileDialog::AcceptOpen, false);
        for (int i = 0; i < ofEachKind; ++i) {
            dialog.addCustomButton("Button", [] {});
            dialog.addCustomCheckBox("Check box", boost::make_shared<morvane::Property<bool>>(false));
            dialog.addCustomComboBox("List:", {"One", "Two", "Three"}, chosen);
            dialog.addCustomLineEdit("Text:", text);
            dialog.addCustomRadioButtons("Unit:", {"mm", "m"}, chosen);
        }
        dialog.exec();
    });
}

void openWithoutControls(benchmark::State& state)
{
    nativeDialogWithControls(state, 0);
}

void openWith50Controls(benchmark::State& state)
{
    nativeDialogWithControls(state, 10);
}

void plainSaveDialog(benchmark::State& state)
{
    measure(state, [](FirstFrame& frame) {
        QFileDialog dialog(&window(), QStringLiteral("Save"), QString::fromStdString(folder()), filters);
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.selectFile(QStringLiteral("report"));
        frame.start();
        dialog.exec();
    });
}

void saveFlow(benchmark::State& state)
{
    ExtendedFileDialog::setUseNativeFileDialog(false);
    measure(state, [](FirstFrame& frame) {
        QWidget parent;
        SaveFileDialog dialog(&parent, "Save", folder(), "report", std::string(filters), "");
        frame.start();
        dialog.launch();
    });
    ExtendedFileDialog::setUseNativeFileDialog(true);
}

void plainCallWith(benchmark::State& state, const QString& file)
{
    measure(state, [&file](FirstFrame& frame) {
        frame.start();
        QFileDialog dialog(&window(), QStringLiteral("Open"), QString::fromStdString(folder()), filters);
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setFileMode(QFileDialog::ExistingFile);
        if (!file.isEmpty()) {
            dialog.selectFile(file);
        }
        dialog.exec();
    });
}

/** With construction, for dialogs that make their window when they are shown. */
void plainCall(benchmark::State& state)
{
    plainCallWith(state, QString());
}

void plainCallWithFile(benchmark::State& state)
{
    plainCallWith(state, QStringLiteral("run-1.dat"));
}

void launcherCall(benchmark::State& state)
{
    ExtendedFileDialog::setUseNativeFileDialog(false);
    measure(state, [](FirstFrame& frame) {
        std::vector<std::string> files;
        int filter = 0;
        frame.start();
        LaunchFileDialog(
            files, filter, "Open", {"Data (*.dat *.csv)", "All files (*)"}, {folder() + "/run-1.dat"}, false, false, 0);
    });
    ExtendedFileDialog::setUseNativeFileDialog(true);
}

QStringListModel& entries()
{
    static QStringListModel model([] {
        QStringList names;
        names.reserve(entryCount);
        for (int i = 0; i < entryCount; ++i) {
            names.append(QStringLiteral("channel-%1_%2").arg(qint64(i) * 7919 % entryCount).arg(i % 97));
        }
        return names;
    }());
    return model;
}

template <typename Box>
void paintedList(benchmark::State& state, Box& box)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.resize(300, 30);
    box.show();
    box.activateWindow();
    box.setFocus();
    QApplication::processEvents();
    for (auto _ : state) {
        state.PauseTiming();
        box.completer()->popup()->hide();
        box.lineEdit()->clear();
        box.completer()->setCompletionPrefix(QString());
        QApplication::processEvents();
        state.ResumeTiming();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_9, Qt::NoModifier, QStringLiteral("9"));
        QCoreApplication::sendEvent(box.lineEdit(), &press);
        QApplication::processEvents();
        if (box.completer()->popup()->grab().isNull()) {
            qFatal("nothing was painted");
        }
    }
    box.completer()->popup()->hide();
}

void comboKeyPlain(benchmark::State& state)
{
    QComboBox box;
    box.setModel(&entries());
    box.setEditable(true);
    box.setInsertPolicy(QComboBox::NoInsert);
    auto* const completer = new QCompleter(&entries(), &box);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    box.setCompleter(completer);
    paintedList(state, box);
}

void comboKeyFiltering(benchmark::State& state)
{
    ComboBoxAutoFilter box(nullptr);
    box.setListModel(
        &entries(), true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    paintedList(state, box);
}

MORVANE_BENCHMARK(plainDialog)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(extendedDialog)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(nativeDialog)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(openWithoutControls)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(openWith50Controls)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(plainSaveDialog)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(saveFlow)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(plainCall)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(plainCallWithFile)->Iterations(1)->Repetitions(41)->UseManualTime();
MORVANE_BENCHMARK(launcherCall)->Iterations(1)->Repetitions(41)->UseManualTime();
// Few: the stock completer takes seconds.
MORVANE_BENCHMARK(comboKeyPlain)->Iterations(1)->Repetitions(5);
MORVANE_BENCHMARK(comboKeyFiltering)->Iterations(1)->Repetitions(5);

MORVANE_RATIO(firstframe_qtdialog, extendedDialog, plainDialog, 1.2);
MORVANE_RATIO(firstframe_native, nativeDialog, plainCall, 1.2);
MORVANE_RATIO(controls_50, openWith50Controls, openWithoutControls, 1.5);
MORVANE_RATIO(firstframe_save, saveFlow, plainSaveDialog, 1.2);
MORVANE_RATIO(firstframe_launcher, launcherCall, plainCallWithFile, 1.2);
MORVANE_RATIO(combo_key_painted_1m, comboKeyFiltering, comboKeyPlain, 1.2);

} // namespace
