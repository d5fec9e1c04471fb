#pragma once

#include <QString>

#include <functional>
#include <iterator>
#include <vector>

namespace gallery {

/** One thing that the tour does as a user would, and how it tells that the program answered as it should. */
struct TourStep
{
    /** Part of the picture's file name: lower case, words joined by `-`. */
    QString name;
    /** Plays the user. It may open a modal dialog; the following steps then run while that is open. */
    std::function<void()> action;
    /** What is not yet as expected, or an empty text. Asked again and again until it is empty or the time is up. */
    std::function<QString()> check;
};

inline void append(std::vector<TourStep>& steps, std::vector<TourStep> more)
{
    std::move(more.begin(), more.end(), std::back_inserter(steps));
}

/** The same steps for one of two kinds of dialog, told apart by their names. */
inline std::vector<TourStep> namedAfterKind(std::vector<TourStep> steps, bool native)
{
    for (TourStep& step : steps) {
        step.name.prepend(native ? QStringLiteral("native-") : QStringLiteral("qt-"));
    }
    return steps;
}

} // namespace gallery
