// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <iterator>
#include <vector>

namespace gallery {

/** One action that the tour performs as a user, and the check of its result. */
struct TourStep
{
    /** Part of the picture's file name: lower case, words joined by `-`. */
    QString name;
    /** Plays the user. It may open a modal dialog; the following steps then run while that is open. */
    std::function<void()> action;
    /**
     * Returns a description of what is not as expected yet, or an empty text. Called repeatedly until the text is empty
     * or the time limit is reached.
     */
    std::function<QString()> check;
};

inline void append(std::vector<TourStep>& steps, std::vector<TourStep> more)
{
    std::move(more.begin(), more.end(), std::back_inserter(steps));
}

/** The same steps for one of two kinds of dialog. The names of the steps differ. */
inline std::vector<TourStep> namedAfterKind(std::vector<TourStep> steps, bool native)
{
    for (TourStep& step : steps) {
        step.name.prepend(native ? QStringLiteral("native-") : QStringLiteral("qt-"));
    }
    return steps;
}

} // namespace gallery
