// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A combo box that finds entries by several words, with or without accents, and shows them in bold.

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

    //! [words]
    auto* const channel = new ComboBoxAutoFilter(&window);
    channel->setList({"Bearing pressure", "Bearing temperature", QString::fromUtf8("Crémaillère temperature"),
        QString::fromUtf8("Fabry-Pérot cavity pressure"), QString::fromUtf8("Fabry-Pérot cavity temperature")});
    channel->setEditMode(ComboBoxAutoFilter::FormField);
    channel->setFiltering(true);

    // These are off initially. In Qt Designer they are properties.
    channel->setMatchingWords(true);   // "temp cav" finds the cavity's temperature
    channel->setIgnoringAccents(true); // "perot" finds "Pérot"
    channel->setMatchShown(true);      // what was found is bold in the suggestions
    //! [words]

    auto* const chosen = new QLabel("Type some words, such as temp perot.");
    QObject::connect(channel, &ComboBoxAutoFilter::selectionComplete, chosen,
        [=] { chosen->setText("Chosen: " + channel->itemText(channel->currentIndex())); });
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(channel);
    layout->addWidget(chosen);
    layout->addStretch();
    window.setWindowTitle("Words in any order");
    window.resize(420, 120);
    window.show();
    return QApplication::exec();
}
