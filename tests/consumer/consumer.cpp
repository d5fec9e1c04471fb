// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Uses one piece of each library with nothing but the installed headers, and with Qt's keywords switched on.
#include "host/StringConversion.h"
#include "property/Property.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <boost/make_shared.hpp>

namespace {

bool labelShowsWhatItCuts()
{
    ElidedTextLabel label;
    label.setText("measurements/pressure.dat");
    label.resize(label.sizeHint().width() / 2, label.sizeHint().height());
    label.grab();
    return label.toolTip() == label.text();
}

bool boxCompletesWithWhatItContains()
{
    morvane::ui::ComboBoxAutoFilter box(nullptr);
    box.setList({"Bar", "Car", "Dog"});
    box.setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    box.completer()->setCompletionPrefix("ar");
    // CTK's class or Morvane's of the same name.
    const QString completer = box.completer()->metaObject()->className();
    return completer.split("::").last() == "ctkCompleter" && box.completer()->completionCount() == 2;
}

/** Looks up a narrow path on the disk. Windows has wide names; a host needs no preparations for that. */
bool findsWhatHasANameBeyondAscii()
{
    const QTemporaryDir temporary;
    const QString file =
        temporary.filePath(QString::fromUtf8("\xE5\x86\x99\xE7\x9C\x9F \xC3\xBC \xF0\x9F\x93\xB7.dat"));
    QFile made(file);
    if (!made.open(QIODevice::WriteOnly)) {
        return false;
    }
    QWidget window;
    ExtendedWinFileDialog dialog(window, "Open", file.toStdString(), "", "", QFileDialog::AcceptOpen, false);
    return dialog.directory() == QDir(temporary.path());
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    int announced = 0;
    const auto count = boost::make_shared<morvane::Property<int>>(1);
    count->signalValueChanged.connect([&announced](const int& value) { announced = value; });
    count->setValue(2);

    QWidget window;
    QExtendedFileDialog dialog(window, "Open", "", "Data (*.dat);;All (*)", "", QFileDialog::AcceptOpen);

    const bool works = announced == 2 && dialog.nameFilters().size() == 2 && morvane::utf8ToWideString("x") == L"x";
    const bool shows = labelShowsWhatItCuts() && boxCompletesWithWhatItContains();
    return works && shows && findsWhatHasANameBeyondAscii() ? 0 : 1;
}
