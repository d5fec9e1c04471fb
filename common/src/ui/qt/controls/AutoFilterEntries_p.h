#pragma once

#include <QModelIndex>
#include <QString>
#include <QStringMatcher>

#include <limits>

class QAbstractItemModel;

namespace morvane::ui {

/** How well a text fits an entry, the worst first. */
enum class EntryFit
{
    None,
    Contained,       ///< the entry contains the text, whatever the case
    EqualButForCase, ///< the entry is the text but for the case
    Equal
};

/** Compares one text with entries. Prepares the text once, and not for each entry. */
class EntryMatcher
{
public:
    explicit EntryMatcher(const QString& text) : m_text(text), m_contained(text, Qt::CaseInsensitive) {}

    EntryFit fit(const QString& entry) const;

private:
    const QString m_text;
    const QStringMatcher m_contained;
};

/** Which of the entries that fit a text is found. */
enum class EntryPreference
{
    First, ///< the first one, also for an empty text
    Equal  ///< the one that fits best, the first one of these; for an empty text only an equal one
};

/**
 * The row of the entry that a text stands for, -1 for none. Disabled entries do not count.
 *
 * @param entries,column,root where the entries are
 * @param rows                how many of them are searched
 */
int findEntry(const QAbstractItemModel& entries, int column, const QModelIndex& root, const QString& text,
    EntryPreference preference, int rows = std::numeric_limits<int>::max());

/** Whether a user may take this entry. */
bool isEnabledEntry(const QModelIndex& entry);

/** The entry of the model that a suggestion shows; invalid if the suggestion comes from another model. */
QModelIndex entryOfSuggestion(QModelIndex suggestion, const QAbstractItemModel& entries);

} // namespace morvane::ui
