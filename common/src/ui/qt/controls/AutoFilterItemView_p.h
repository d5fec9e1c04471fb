// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>

namespace morvane::ui {

/** The popup list of ComboBoxAutoFilter. Emits signals for the keys that end the editing or move its cursor. */
class AutoFilterItemView : public QListView
{
    Q_OBJECT

public:
    using QListView::QListView;

protected:
    void keyPressEvent(QKeyEvent* event) override;

Q_SIGNALS:
    /** Return or Enter was pressed; the list has not handled the key yet. A slot may delete the list. */
    void editingFinished();
    /** Escape was pressed; the list has not handled the key yet. A slot may delete the list. */
    void editingCanceled();
    /** Up or Down was pressed and handled. The index is invalid in an empty list. */
    void currentIndexChanged(const QModelIndex& index);
};

} // namespace morvane::ui
