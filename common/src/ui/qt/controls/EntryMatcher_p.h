// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringMatcher>

#include <utility>
#include <vector>

namespace morvane::ui {

/** How a text is compared with entries. */
struct EntryMatching
{
    bool words = false;          ///< an entry must contain each word of the text; otherwise the text as a whole
    bool ignoresAccents = false; ///< a letter with an accent equals the letter without it

    /** Whether this is more than what QCompleter does. */
    bool isExtended() const { return words || ignoresAccents; }
    bool operator==(const EntryMatching& other) const
    {
        return words == other.words && ignoresAccents == other.ignoresAccents;
    }
};

/** How well a text fits an entry, in ascending order. */
enum class EntryFit
{
    None,
    Contained,          ///< the entry contains the text, whatever the case
    EqualButForAccents, ///< the entry and the text differ only in accents and case; only if accents are ignored
    EqualButForCase,    ///< the entry and the text differ only in case
    Equal
};

/** Compares one text with entries. Prepares the text once, and not for each entry. */
class EntryMatcher
{
public:
    /** A place in an entry and a length. */
    using Place = std::pair<int, int>;

    explicit EntryMatcher(
        const QString& text, EntryMatching matching = {}, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

    /** Whether the entry contains the text; any entry contains an empty one. */
    bool isContainedIn(const QString& entry) const;
    /** Equality always ignores the case. */
    EntryFit fit(const QString& entry) const;
    /** Where the entry has the text or its words, in ascending order, without overlaps. */
    std::vector<Place> places(const QString& entry) const;

private:
    struct Part
    {
        QString text;
        QStringMatcher matcher;
        bool hasSurrogates;
    };

    void addPart(const QString& text);
    int indexOf(const Part& part, const QString& entry, int from) const;
    bool hasAllParts(const QString& entry) const;

    const EntryMatching m_matching;
    const Qt::CaseSensitivity m_sensitivity;
    const QString m_text;
    std::vector<Part> m_parts;
};

} // namespace morvane::ui
