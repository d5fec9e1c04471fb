// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class QDir;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace gallery {

class InlineNote;

/** A table with the files of a folder, whose selection can be copied, and the resulting clipboard text. */
class TableCopyPage : public Page
{
    Q_OBJECT

public:
    TableCopyPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    enum Column
    {
        Name,
        Size,
        Modified,
        ColumnCount
    };

    QLayout* makeFolderForm();
    QLayout* makeCopyRow();
    void prepareTable();
    void listFolder();
    void addFiles(const QDir& folder);
    void showClipboard();

    QLineEdit* m_folder;
    InlineNote* m_folderNote;
    QTableWidget* m_files;
    QPushButton* m_copy;
    QPushButton* m_hideSizes;
    QPlainTextEdit* m_clipboard;
};

} // namespace gallery
