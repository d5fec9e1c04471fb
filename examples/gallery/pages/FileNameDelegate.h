// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

class QStringListModel;

namespace gallery {

/** Edits the cells of a table with a filtering combo box that is created for each edit. */
class FileNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param names the entries; shared by all editors, and must outlive them */
    FileNameDelegate(QStringListModel& names, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    void reported(const QString& event);

private:
    void finish(QWidget* editor);
    void cancel(QWidget* editor);

    QStringListModel& m_names;
};

} // namespace gallery
