// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/EntryMatcher_p.h"

#include "ui/qt/controls/AccentFolding_p.h"

#include <QStringList>

#include <algorithm>

namespace morvane::ui {

namespace {

bool equalsIgnoringCase(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/** Joins places that overlap or touch. */
std::vector<EntryMatcher::Place> merged(std::vector<EntryMatcher::Place> places)
{
    std::sort(places.begin(), places.end());
    std::vector<EntryMatcher::Place> result;
    for (const EntryMatcher::Place& place : places) {
        if (!result.empty() && place.first <= result.back().first + result.back().second) {
            const int end = std::max(result.back().first + result.back().second, place.first + place.second);
            result.back().second = end - result.back().first;
        } else {
            result.push_back(place);
        }
    }
    return result;
}

} // namespace

EntryMatcher::EntryMatcher(const QString& text, EntryMatching matching, Qt::CaseSensitivity sensitivity)
    : m_matching(matching), m_sensitivity(sensitivity), m_text(matching.words ? text.trimmed() : text)
{
    const QString compared = matching.ignoresAccents ? withoutAccents(text) : text;
    if (!matching.words) {
        addPart(compared);
        return;
    }
    const QStringList words = compared.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        addPart(word);
    }
}

void EntryMatcher::addPart(const QString& text)
{
    const bool hasSurrogates = std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isSurrogate(); });
    m_parts.push_back({text, QStringMatcher(text, m_sensitivity), hasSurrogates});
}

int EntryMatcher::indexOf(const Part& part, const QString& entry, int from) const
{
    // With surrogates, QStringMatcher of newer versions of Qt 6 misses what QString finds.
    return static_cast<int>(
        part.hasSurrogates ? entry.indexOf(part.text, from, m_sensitivity) : part.matcher.indexIn(entry, from));
}

bool EntryMatcher::hasAllParts(const QString& entry) const
{
    return std::all_of(m_parts.begin(), m_parts.end(), [&](const Part& part) { return indexOf(part, entry, 0) >= 0; });
}

bool EntryMatcher::isContainedIn(const QString& entry) const
{
    return m_matching.ignoresAccents ? hasAllParts(withoutAccents(entry)) : hasAllParts(entry);
}

EntryFit EntryMatcher::fit(const QString& entry) const
{
    if (!isContainedIn(entry)) {
        return EntryFit::None;
    }
    if (entry == m_text) {
        return EntryFit::Equal;
    }
    if (equalsIgnoringCase(entry, m_text)) {
        return EntryFit::EqualButForCase;
    }
    const bool isEqual = m_matching.ignoresAccents && equalsIgnoringCase(withoutAccents(entry), withoutAccents(m_text));
    return isEqual ? EntryFit::EqualButForAccents : EntryFit::Contained;
}

std::vector<EntryMatcher::Place> EntryMatcher::places(const QString& entry) const
{
    std::vector<int> origins;
    const QString compared = m_matching.ignoresAccents ? withoutAccents(entry, &origins) : entry;
    std::vector<Place> found;
    for (const Part& part : m_parts) {
        const int length = static_cast<int>(part.text.size());
        int at = length > 0 ? indexOf(part, compared, 0) : -1;
        for (; at >= 0; at = indexOf(part, compared, at + length)) {
            const int begin = origins.empty() ? at : origins[static_cast<std::size_t>(at)];
            const int end = origins.empty() ? at + length : origins[static_cast<std::size_t>(at + length)];
            found.emplace_back(begin, end - begin);
        }
    }
    return merged(std::move(found));
}

} // namespace morvane::ui
