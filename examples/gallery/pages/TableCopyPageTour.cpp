// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "InlineNote.h"
#include "pages/TableCopyPage.h"
#include "tour/TourUser.h"
#include "tour/TourWorkspace.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

namespace gallery {

using tour::expect;

std::vector<TourStep> TableCopyPage::tourSteps(const TourWorkspace& workspace)
{
    const auto copied = [this](const QString& text) {
        return expect(QApplication::clipboard()->text() == text && m_clipboard->toPlainText() == text,
            QStringLiteral("on the clipboard is \"%1\"").arg(QApplication::clipboard()->text()));
    };
    const auto cell = [this](int row, int column) { return m_files->model()->index(row, column); };
    const auto line = [&workspace](const QString& name) {
        const QFileInfo file(workspace.folder().path(name));
        return QStringLiteral("%1\t%2\t%3").arg(name).arg(file.size()).arg(QVariant(file.lastModified()).toString());
    };
    const auto copy = [this] { tour::press(*m_files, Qt::Key_C, Qt::ControlModifier); };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("missing-folder"),
        [=, &workspace] { tour::type(*m_folder, workspace.folder().path(QStringLiteral("missing"))); },
        [this] {
            return expect(m_files->rowCount() == 0 && !m_folderNote->text().isEmpty(),
                "no message says that the folder is missing");
        }});
    steps.push_back(
        {QStringLiteral("list-files"), [=, &workspace] { tour::type(*m_folder, workspace.folder().path()); },
            [this] { return expect(m_files->rowCount() == 5 && m_folderNote->text().isEmpty(), "no files"); }});
    steps.push_back({QStringLiteral("copy-block"),
        [=] {
            tour::clickItem(*m_files, cell(1, Name));
            tour::clickItem(*m_files, cell(2, Modified), Qt::ShiftModifier);
            copy();
        },
        [=] { return copied(line(QStringLiteral("run-001.dat")) + '\n' + line(QStringLiteral("run-002.dat"))); }});
    steps.push_back({QStringLiteral("copy-picked-cells"),
        [=] {
            tour::clickItem(*m_files, cell(4, Name));
            tour::clickItem(*m_files, cell(0, Name), Qt::ControlModifier);
            tour::clickItem(*m_files, cell(2, Name), Qt::ControlModifier);
            tour::click(*m_copy);
        },
        [=] { return copied(QStringLiteral("notes.txt\nrun-002.dat\nsummary.csv")); }});
    steps.push_back({QStringLiteral("copy-hidden-column"),
        [=] {
            tour::click(*m_hideSizes);
            tour::clickItem(*m_files, cell(3, Name));
            tour::clickItem(*m_files, cell(3, Modified), Qt::ShiftModifier);
            copy();
        },
        [=] { return copied(line(QStringLiteral("run-003.dat"))); }});
    steps.push_back({QStringLiteral("copy-nothing"),
        [=] {
            tour::click(*m_hideSizes);
            m_files->clearSelection();
            copy();
        },
        [=] { return copied(QString()); }});
    return steps;
}

} // namespace gallery
