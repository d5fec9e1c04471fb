// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringMatcher>

namespace morvane::ui {

/** How well a text fits an entry, in ascending order. */
enum class EntryFit
{
    None,
    Contained,       ///< the entry contains the text, whatever the case
    EqualButForCase, ///< the entry and the text differ only in case
    Equal
};

/** Compares one text with entries. Prepares the text once, and not for each entry. */
class EntryMatcher
{
public:
    explicit EntryMatcher(const QString& text);

    EntryFit fit(const QString& entry) const;

private:
    bool isContainedIn(const QString& entry) const;

    const QString m_text;
    const QStringMatcher m_contained;
    const bool m_hasSurrogates;
};

} // namespace morvane::ui
