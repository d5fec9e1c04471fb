#pragma once

#include <QString>
#include <QStringList>

namespace gallery {

/** What the command line asks for. */
struct CommandLine
{
    enum class Action
    {
        Run,
        PrintAndSucceed,
        PrintAndFail
    };

    Action action = Action::Run;
    /** What to print: the help, the version, or what is wrong. */
    QString message;
    QString page;
    bool dark = false;
    bool tour = false;
    QString tourDirectory;
};

/** Reads @p arguments, the program's name first. Needs an application object, but no display. */
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace gallery
