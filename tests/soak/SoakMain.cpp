// Opens and closes every dialog and widget many times and watches what the process holds. Not part of the tests that
// run by themselves: `./dev soak [CYCLES [NAME...]]`.
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell.h"
#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/TableCopyHandler.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace {

using namespace morvane::ui;

constexpr int warmUp = 500;
/** Qt keeps a little more with each window (hash tables of windows that grow, a log of the X server). */
constexpr double mostBytesPerCycle = 16;

struct Holdings
{
    double heapBytes;
    double residentBytes;
    int descriptors;
};

double residentBytes()
{
    long pages = 0;
    if (std::FILE* const file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*d %ld", &pages) != 1) {
            pages = 0;
        }
        std::fclose(file);
    }
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

Holdings holdings()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    return {static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd), residentBytes(),
        static_cast<int>(QDir(QStringLiteral("/proc/self/fd")).count())};
}

/** Closes the modal window that is about to open. */
void rejectSoon()
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            dialog->reject();
        }
    });
    timer->start(0);
}

void launch(bool native)
{
    ExtendedFileDialog::setUseNativeFileDialog(native);
    std::vector<std::string> files;
    int filter = 0;
    rejectSoon();
    LaunchFileDialog(files, filter, "Open", {"Data (*.dat)", "All (*)"}, {}, false, true, 1);
}

template <typename Widget>
void showWidget(Widget& widget)
{
    widget.show();
    QCoreApplication::processEvents();
    widget.hide();
}

struct Subject
{
    const char* name;
    std::function<void(QWidget&)> cycle;
};

const std::vector<Subject>& subjects()
{
    static const std::vector<Subject> all{
        {"QExtendedFileDialog",
            [](QWidget& parent) {
                QExtendedFileDialog dialog(parent, "Open", "", "Data (*.dat)", "topic", QFileDialog::AcceptOpen);
                rejectSoon();
                dialog.exec();
            }},
        {"ExtendedWinFileDialog",
            [](QWidget& parent) {
                ExtendedWinFileDialog dialog(
                    parent, "Save", "", "Data (*.dat);;All (*)", "topic", QFileDialog::AcceptSave, true);
                dialog.addCustomButton("Button", [] {});
                dialog.addAcceptButtonOption("Option", 1);
                rejectSoon();
                dialog.exec();
            }},
        {"LaunchFileDialog-qt", [](QWidget&) { launch(false); }},
        {"LaunchFileDialog-native", [](QWidget&) { launch(true); }},
        {"SaveFileDialog-qt",
            [](QWidget&) {
                QWidget parent;
                ExtendedFileDialog::setUseNativeFileDialog(false);
                SaveFileDialog dialog(&parent, "Save", "", "report", std::string("Data (*.dat)"), "");
                rejectSoon();
                dialog.launch();
            }},
        {"ComboBoxAutoFilter",
            [](QWidget& parent) {
                ComboBoxAutoFilter box(&parent);
                box.addItems({"one", "two", "three"});
                box.show();
                box.showPopup();
                QCoreApplication::processEvents();
                box.hidePopup();
            }},
        {"QScientificSpinBox",
            [](QWidget& parent) {
                QScientificSpinBox box(&parent);
                showWidget(box);
            }},
        {"IntegralSpinBox",
            [](QWidget& parent) {
                IntegralSpinBox box(&parent);
                showWidget(box);
            }},
        {"ElidedTextLabel",
            [](QWidget& parent) {
                ElidedTextLabel label(&parent);
                label.setText(QString(300, QLatin1Char('x')));
                showWidget(label);
            }},
        {"CorrectFontCommandLinkButton",
            [](QWidget& parent) {
                CorrectFontCommandLinkButton button(&parent);
                button.setText(QStringLiteral("Text"));
                showWidget(button);
            }},
        {"TableCopyHandler",
            [](QWidget& parent) {
                QStandardItemModel model(20, 4);
                QTableView view(&parent);
                view.setModel(&model);
                auto* const handler = new TableCopyHandler(view);
                showWidget(view);
                view.selectAll();
                handler->copyToClipboard();
            }},
        {"OverrideCursor", [](QWidget&) { const OverrideCursor cursor(Qt::WaitCursor); }},
    };
    return all;
}

/** Whether nothing piled up. */
bool soak(const Subject& subject, int cycles, QWidget& parent)
{
    for (int i = 0; i < warmUp; ++i) {
        subject.cycle(parent);
    }
    const Holdings before = holdings();
    QElapsedTimer clock;
    clock.start();
    for (int i = warmUp; i < cycles; ++i) {
        subject.cycle(parent);
    }
    const double seconds = static_cast<double>(clock.elapsed()) / 1000;
    const Holdings after = holdings();
    const double perCycle = (after.heapBytes - before.heapBytes) / (cycles - warmUp);
    const bool flat = perCycle <= mostBytesPerCycle && after.descriptors <= before.descriptors;
    std::printf("| `%s` | %d | %.0f | %.1f | %+.0f | %+d | %s |\n", subject.name, cycles, before.heapBytes / 1024,
        perCycle, (after.residentBytes - before.residentBytes) / 1024, after.descriptors - before.descriptors,
        flat ? "flat" : "GROWS");
    std::fprintf(stderr, "%s: %.0f s\n", subject.name, seconds);
    std::fflush(stdout);
    return flat;
}

bool isWanted(const Subject& subject, int argc, char** argv)
{
    for (int i = 2; i < argc; ++i) {
        if (std::string(argv[i]) == subject.name) {
            return true;
        }
    }
    return argc <= 2;
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        qputenv(variable, home.path().toUtf8());
    }
    QDir::setCurrent(home.path());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    WidgetShell shell(WidgetShell::Appearance::AlwaysWidgets);
    const ShellOverride shellOverride(shell);
    QWidget parent;
    parent.show();

    const int cycles = argc > 1 ? std::atoi(argv[1]) : 10000;
    if (cycles <= warmUp) {
        std::fprintf(stderr, "more than %d cycles are needed\n", warmUp);
        return 2;
    }
    std::printf("| what | cycles | heap after %d, KiB | bytes a cycle from then on | resident, KiB | descriptors | |\n"
                "|---|---|---|---|---|---|---|\n",
        warmUp);
    bool flat = true;
    for (const Subject& subject : subjects()) {
        if (isWanted(subject, argc, argv)) {
            flat = soak(subject, cycles, parent) && flat;
        }
    }
    return flat ? 0 : 1;
}
