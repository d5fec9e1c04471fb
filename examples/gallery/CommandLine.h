// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace gallery {

/** The result of parsing the command line. */
struct CommandLine
{
    enum class Action
    {
        Run,
        PrintAndSucceed,
        PrintAndFail
    };

    Action action = Action::Run;
    /** The text to print: the help, the version, or the error. */
    QString message;
    QString page;
    QString language; ///< null: that of the user
    bool dark = false;
    bool tour = false;
    QString tourDirectory;
};

/** Parses @p arguments, which begin with the program's name. Needs an application object, but no display. */
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace gallery
