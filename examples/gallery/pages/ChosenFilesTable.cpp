// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ChosenFilesTable.h"

#include "PaddedItemDelegate.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>

namespace gallery {

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("gallery::ChosenFilesTable", source);
}

QString sizeText(const QFileInfo& file)
{
    if (file.isDir()) {
        return text("folder");
    }
    return file.exists() ? QLocale().formattedDataSize(file.size()) : text("does not exist");
}

} // namespace

ChosenFilesTable::ChosenFilesTable()
{
    setAccessibleName(text("Chosen files"));
    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels({text("Name"), text("Size"), text("Modified"), text("Folder")});
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumSectionSize(14 * fontMetrics().averageCharWidth());
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    setItemDelegate(new PaddedItemDelegate(4, this));
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setMinimumHeight(5 * verticalHeader()->defaultSectionSize());
}

QStringList ChosenFilesTable::showFiles(const QStringList& files)
{
    QStringList lines;
    setRowCount(0);
    for (const QString& file : files) {
        const QFileInfo info(file);
        const int row = rowCount();
        insertRow(row);
        setItem(row, Name, new QTableWidgetItem(info.fileName()));
        setItem(row, Size, new QTableWidgetItem(sizeText(info)));
        setItem(row, Modified, new QTableWidgetItem(QLocale().toString(info.lastModified(), QLocale::ShortFormat)));
        setItem(row, Folder, new QTableWidgetItem(QDir::toNativeSeparators(info.absolutePath())));
        item(row, Size)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        item(row, Name)->setToolTip(QDir::toNativeSeparators(file));
        lines.append(text("Chosen: %1 (%2)").arg(QDir::toNativeSeparators(file), sizeText(info)));
    }
    return lines;
}

QString ChosenFilesTable::content() const
{
    QStringList rows;
    for (int row = 0; row < rowCount(); ++row) {
        rows.append(item(row, Name)->text() + QLatin1Char('=') + item(row, Size)->text());
    }
    return rows.join(QLatin1Char(' '));
}

} // namespace gallery
