// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/TableCopyPage.h"

#include "InlineNote.h"
#include "PaddedItemDelegate.h"
#include "ui/qt/util/TableCopyHandler.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextOption>
#include <QVBoxLayout>

namespace gallery {

namespace {

QTableWidgetItem* makeItem(const QVariant& value)
{
    auto* const item = new QTableWidgetItem;
    item->setData(Qt::DisplayRole, value);
    return item;
}

} // namespace

TableCopyPage::TableCopyPage()
    : Page(QStringLiteral("table-copy"), tr("Copying a table"),
          tr("Select cells with the mouse or the keyboard and press Ctrl+C: the selection lands on the clipboard as "
             "cells for a spreadsheet.")),
      m_folder(new QLineEdit(QDir::toNativeSeparators(QDir::homePath()))),
      m_folderNote(new InlineNote),
      m_files(new QTableWidget),
      m_copy(new QPushButton(tr("&Copy"))),
      m_hideSizes(new QPushButton(tr("&Hide Sizes"))),
      m_clipboard(new QPlainTextEdit)
{
    body().addLayout(makeFolderForm());
    prepareTable();
    body().addWidget(m_files, 3);
    body().addLayout(makeCopyRow());
    body().addWidget(m_clipboard, 2);

    auto* const handler = new morvane::ui::TableCopyHandler(*m_files);
    connect(m_copy, &QPushButton::clicked, handler, &morvane::ui::TableCopyHandler::copyToClipboard);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] { showClipboard(); });
    connect(m_hideSizes, &QPushButton::toggled, m_files, [this](bool hide) { m_files->setColumnHidden(Size, hide); });
    connect(m_folder, &QLineEdit::textChanged, this, [this] { listFolder(); });
    listFolder();
}

QLayout* TableCopyPage::makeFolderForm()
{
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Folder:"), m_folder);
    form->addRow(QString(), m_folderNote);
    return form;
}

QLayout* TableCopyPage::makeCopyRow()
{
    m_hideSizes->setCheckable(true);
    m_hideSizes->setToolTip(tr("Hidden cells that are selected are copied too."));
    // The tabs and line ends must be visible.
    QTextOption visibleSeparators = m_clipboard->document()->defaultTextOption();
    visibleSeparators.setFlags(QTextOption::ShowTabsAndSpaces | QTextOption::ShowLineAndParagraphSeparators);
    m_clipboard->document()->setDefaultTextOption(visibleSeparators);
    m_clipboard->setReadOnly(true);
    m_clipboard->setTabChangesFocus(true);
    m_clipboard->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_clipboard->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_clipboard->setTabStopDistance(16 * m_clipboard->fontMetrics().averageCharWidth());
    m_clipboard->setMinimumHeight(6 * m_clipboard->fontMetrics().lineSpacing());
    m_clipboard->setPlaceholderText(tr("Nothing was copied yet."));
    auto* const label = new QLabel(tr("On the c&lipboard:"));
    label->setBuddy(m_clipboard);

    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addStretch(1);
    row->addWidget(m_hideSizes);
    row->addWidget(m_copy);
    return row;
}

void TableCopyPage::prepareTable()
{
    m_files->setAccessibleName(tr("Files"));
    m_files->setColumnCount(ColumnCount);
    m_files->setHorizontalHeaderLabels({tr("Name"), tr("Size"), tr("Modified")});
    m_files->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_files->horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
    m_files->horizontalHeader()->setSectionResizeMode(Size, QHeaderView::ResizeToContents);
    m_files->horizontalHeader()->setSectionResizeMode(Modified, QHeaderView::ResizeToContents);
    m_files->setItemDelegate(new PaddedItemDelegate(4, m_files));
    m_files->setTextElideMode(Qt::ElideMiddle);
    m_files->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_files->setTabKeyNavigation(false);
    m_files->setMinimumHeight(5 * m_files->verticalHeader()->defaultSectionSize());
}

void TableCopyPage::listFolder()
{
    const QDir folder(QDir::fromNativeSeparators(m_folder->text()));
    m_folderNote->setText(folder.exists() ? QString() : tr("There is no such folder."));
    m_files->setSortingEnabled(false); // it would move rows that are still being filled
    m_files->setRowCount(0);
    if (folder.exists()) {
        addFiles(folder);
    }
    m_files->setSortingEnabled(true);
    m_files->sortByColumn(Name, Qt::AscendingOrder);
}

void TableCopyPage::addFiles(const QDir& folder)
{
    const QFileInfoList files = folder.entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files) {
        const int row = m_files->rowCount();
        m_files->insertRow(row);
        m_files->setItem(row, Name, makeItem(file.fileName()));
        m_files->setItem(row, Size, makeItem(file.size()));
        m_files->setItem(row, Modified, makeItem(file.lastModified()));
        m_files->item(row, Size)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void TableCopyPage::showClipboard()
{
    const QString text = QApplication::clipboard()->text();
    m_clipboard->setPlainText(text);
    if (isVisible()) { // other pages copy, too
        const int lines = text.isEmpty() ? 0 : text.count(QLatin1Char('\n')) + 1;
        Q_EMIT reported(tr("Lines on the clipboard: %1").arg(lines));
    }
}

} // namespace gallery
