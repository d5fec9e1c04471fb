// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/LaunchFileDialog.h"

#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/util/GuiThread_p.h"

#include <QApplication>
#include <QByteArray>
#include <QFileInfo>

#include <sstream>

namespace morvane::ui {

// A friend of ExtendedFileDialog. If the exported function itself were the friend, MinGW's compiler would warn in every
// program that includes both headers.
struct ParentlessFileDialog
{
    static ExtendedFileDialog make(
        QWidget* parent, const std::string& caption, const std::string& filter, QFileDialog::AcceptMode acceptMode)
    {
        return ExtendedFileDialog(parent, caption, std::string(), filter, std::string(), acceptMode);
    }

    static int chosenFilter(ExtendedFileDialog& dialog) { return dialog.chosenFilter(); }
};

namespace {

std::string joinedFilters(const std::vector<std::string>& nameFilters)
{
    std::stringstream joined;
    for (std::size_t i = 0; i + 1 < nameFilters.size(); ++i) {
        joined << nameFilters[i] << ";;";
    }
    joined << nameFilters.back();
    return joined.str();
}

QFileDialog::FileMode fileMode(bool saveMode, bool allowMultiple)
{
    if (allowMultiple) {
        return QFileDialog::ExistingFiles;
    }
    return saveMode ? QFileDialog::AnyFile : QFileDialog::ExistingFile;
}

/** The text for the name field: several names are quoted. */
QString selectionText(const std::vector<std::string>& selection, bool allowMultiple)
{
    if (!allowMultiple) {
        return QString::fromStdString(selection.front());
    }
    QString text;
    for (const std::string& entry : selection) {
        if (!entry.empty()) {
            text += QLatin1Char('"') + QString::fromStdString(entry) + QLatin1String("\" ");
        }
    }
    return text;
}

void selectFilter(ExtendedFileDialog& dialog, const std::vector<std::string>& nameFilters, int index)
{
    if (static_cast<std::size_t>(index) < nameFilters.size()) {
        // The Qt dialog simplifies white space.
        const QString given = QString::fromStdString(nameFilters[static_cast<std::size_t>(index)]);
        dialog.selectNameFilter(dialog.nameFilters().contains(given) ? given : given.simplified());
    }
}

} // namespace

bool LaunchFileDialog(std::vector<std::string>& files, int& filterIndex, const std::string& caption,
    const std::vector<std::string>& nameFilters, const std::vector<std::string>& initialSelection, bool saveMode,
    bool allowMultiple, int initialFilterIndex)
{
    expectGuiThread("LaunchFileDialog");
    if (nameFilters.empty()) {
        return false;
    }
    ExtendedFileDialog dialog = ParentlessFileDialog::make(QApplication::activeWindow(), caption,
        joinedFilters(nameFilters), saveMode ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(fileMode(saveMode, allowMultiple));

    // If the first filter of a save dialog accepts every name, the filter is selected before the name. Otherwise the
    // dialog would append the filter's extension to the name.
    const bool filterFirst = saveMode && nameFilters.front().find("*.*") != std::string::npos;
    if (filterFirst) {
        selectFilter(dialog, nameFilters, initialFilterIndex);
    }
    if (!initialSelection.empty()) {
        dialog.setDirectory(QFileInfo(QString::fromStdString(initialSelection.front())).absolutePath());
        dialog.selectFile(selectionText(initialSelection, allowMultiple));
    }
    if (!filterFirst) {
        selectFilter(dialog, nameFilters, initialFilterIndex);
        if (saveMode && allowMultiple && !initialSelection.empty()) {
            // Qt has appended the filter's extension to the list of names.
            dialog.selectFile(selectionText(initialSelection, allowMultiple));
        }
    }

    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const QStringList selected = dialog.selectedFiles();
    if (selected.isEmpty()) {
        return false;
    }
    files.resize(static_cast<std::size_t>(selected.size()));
    for (int i = 0; i < selected.size(); ++i) {
        files[static_cast<std::size_t>(i)] = selected[i].toStdString();
    }
    filterIndex = ParentlessFileDialog::chosenFilter(dialog);
    return true;
}

} // namespace morvane::ui
