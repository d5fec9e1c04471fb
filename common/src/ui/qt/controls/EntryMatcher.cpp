// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/EntryMatcher_p.h"

#include <algorithm>

namespace morvane::ui {

EntryMatcher::EntryMatcher(const QString& text)
    : m_text(text),
      m_contained(text, Qt::CaseInsensitive),
      m_hasSurrogates(std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isSurrogate(); }))
{
}

bool EntryMatcher::isContainedIn(const QString& entry) const
{
    // With surrogates, QStringMatcher of newer versions of Qt 6 misses what QString finds.
    return m_hasSurrogates ? entry.contains(m_text, Qt::CaseInsensitive) : m_contained.indexIn(entry) >= 0;
}

EntryFit EntryMatcher::fit(const QString& entry) const
{
    if (!isContainedIn(entry)) {
        return EntryFit::None;
    }
    if (entry == m_text) {
        return EntryFit::Equal;
    }
    return entry.compare(m_text, Qt::CaseInsensitive) == 0 ? EntryFit::EqualButForCase : EntryFit::Contained;
}

} // namespace morvane::ui
