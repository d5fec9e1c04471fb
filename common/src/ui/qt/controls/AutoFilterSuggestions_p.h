// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/AutoFilterCompleter_p.h"
#include "ui/qt/controls/EventResender_p.h"

#include <QAbstractItemDelegate>
#include <QObject>
#include <QPointer>

class QAbstractItemModel;
class QAbstractItemView;
class QEvent;
class QKeyEvent;
class QMouseEvent;

namespace morvane::ui {

class AutoFilterOutcome;
class ComboBoxAutoFilter;

/**
 * The suggestions of a ComboBoxAutoFilter: the popup of its completer. Marks the suggestion that the line stands for,
 * and lets the user mark and pick suggestions.
 */
class AutoFilterSuggestions : public QObject
{
    Q_OBJECT

public:
    /** @param box owns this object */
    AutoFilterSuggestions(ComboBoxAutoFilter& box, AutoFilterOutcome& outcome);
    ~AutoFilterSuggestions() override;

    /** Uses this completer from now on. It offers the entries of the combo box's model. */
    void setCompleter(AutoFilterCompleter& completer);
    /** Sets up the completer's popup, if it has one. The combo box filters the popup's events. */
    void setUpPopup(Qt::TextElideMode elide);
    /** Makes the completer compare texts as the outcome of an edit does. */
    void followMatching();
    /** Whether the places of the text are shown in bold. */
    bool showsMatch() const { return m_showsMatch; }
    void setShowsMatch(bool on);
    /** Makes the completer offer what the combo box shows: entries of this model in this column. */
    void followModel();

    /** Marks the suggestion that the line stands for, unless the user has marked one. */
    void mark();
    void hide();

    /**
     * Handles an event that was sent to the popup or to its viewport. Returns whether the event must not be handled
     * any further. If so, the combo box may have been destroyed.
     */
    bool filter(QObject& watched, QEvent& event);

Q_SIGNALS:
    /** The user has picked an entry, and it is current now. A slot may delete the combo box. */
    void picked();

private:
    QAbstractItemView* popup() const;
    void keepPopup();
    void updateDelegate(QAbstractItemView& popup);

    bool filterKey(QObject& popup, QKeyEvent& event);
    void moveMark(QObject& popup, QKeyEvent& event);
    bool filterViewport(QObject& viewport, QEvent& event);
    bool filterRelease(QObject& viewport, QMouseEvent& event);
    void pick(int row);
    void followMark();

    ComboBoxAutoFilter& m_box;
    AutoFilterOutcome& m_outcome;
    EventResender m_resender;
    QPointer<AutoFilterCompleter> m_completer;
    bool m_showsMatch = false;
    QPointer<QAbstractItemDelegate> m_stockDelegate;
    QPointer<QAbstractItemDelegate> m_delegate; // shows the match
    QPointer<QAbstractItemModel> m_followedModel;
    int m_followedColumn = 0;
};

} // namespace morvane::ui
