// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/qtdialog/FileDialogAccessibility_p.h"

#include "ui/qt/dialogs/qtdialog/QtFileDialogNames_p.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>

namespace morvane::ui {

namespace {

void nameList(const QFileDialog& dialog, const QString& label, const QString& list)
{
    auto* const text = dialog.findChild<QLabel*>(label);
    auto* const combo = dialog.findChild<QComboBox*>(list);
    if (text && combo) {
        text->setBuddy(combo);
    }
}

} // namespace

void makeListsReachable(const QFileDialog& dialog)
{
    // The button box precedes the list of types in the tab order. With a proxy, Tab would skip the list.
    if (auto* const buttons = dialog.findChild<QDialogButtonBox*>(qtFileDialogNames::buttonBox)) {
        buttons->setFocusProxy(nullptr);
    }
    nameList(dialog, qtFileDialogNames::lookInLabel, qtFileDialogNames::lookInCombo);
    nameList(dialog, qtFileDialogNames::fileTypeLabel, qtFileDialogNames::fileTypeCombo);
}

} // namespace morvane::ui
