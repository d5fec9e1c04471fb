#pragma once

#include <QString>

#include <functional>

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

} // namespace gallery
