// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A combo box that offers only the entries that contain the typed text, at any position.

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

using morvane::ui::ComboBoxAutoFilter;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const outcome = new QLabel("Type a part of a name, such as ene, and press Return.");

    //! [filter]
    auto* const box = new ComboBoxAutoFilter(&window);
    box->setList({"Acetone", "Benzene", "Ethanol", "Propylene", "Toluene", "Water"});
    // This call sets up the filtering. Before it, this is a plain combo box.
    box->setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);

    // Return, Tab or a click ends the edit, and Escape cancels it. In both cases the combo box has already closed
    // itself. The current entry is the outcome; currentText() is the typed text.
    const auto entry = [=] { return box->itemText(box->currentIndex()); };
    QObject::connect(
        box, &ComboBoxAutoFilter::selectionComplete, outcome, [=] { outcome->setText("Chosen: " + entry()); });
    QObject::connect(
        box, &ComboBoxAutoFilter::editingCanceled, outcome, [=] { outcome->setText("Cancelled, still " + entry()); });
    //! [filter]

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(box);
    layout->addWidget(outcome);
    layout->addStretch();
    window.setWindowTitle("Filtering a list");
    window.resize(420, 120);
    window.show();
    return QApplication::exec();
}
