// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileNameDelegate.h"

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QStringListModel>

namespace gallery {

using morvane::ui::ComboBoxAutoFilter;

FileNameDelegate::FileNameDelegate(QStringListModel& names, QObject* parent)
    : QStyledItemDelegate(parent), m_names(names)
{
}

QWidget* FileNameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* const box = new ComboBoxAutoFilter(parent);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setListModel(
        &m_names, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideMiddle, Qt::MatchContains);
    auto* const self = const_cast<FileNameDelegate*>(this);
    connect(box, &ComboBoxAutoFilter::selectionComplete, self, [self, box] { self->finish(box); });
    connect(box, &ComboBoxAutoFilter::editingCanceled, self, [self, box] { self->cancel(box); });
    return box;
}

void FileNameDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    static_cast<ComboBoxAutoFilter*>(editor)->setSelectedText(index.data().toString());
}

void FileNameDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    // Tab reaches the view before the editor, and the view commits the typed text.
    auto* const box = static_cast<ComboBoxAutoFilter*>(editor);
    if (box->validateEntry()) {
        model->setData(index, box->itemText(box->currentIndex()));
    }
}

void FileNameDelegate::finish(QWidget* editor)
{
    const auto* const box = static_cast<QComboBox*>(editor);
    Q_EMIT reported(tr("In the table, selectionComplete: %1").arg(box->itemText(box->currentIndex())));
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

void FileNameDelegate::cancel(QWidget* editor)
{
    Q_EMIT reported(tr("In the table, editingCanceled"));
    Q_EMIT closeEditor(editor, RevertModelCache);
}

} // namespace gallery
