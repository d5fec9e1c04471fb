// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>

namespace gallery {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

// Qt reads these options itself, later.
void addToolkitOptions(QCommandLineParser& parser)
{
    for (const char* const name : {"platform", "platformpluginpath", "platformtheme", "plugin", "style", "stylesheet",
             "display", "geometry", "qwindowgeometry", "qwindowicon", "qwindowtitle", "session"}) {
        QCommandLineOption option(QString::fromLatin1(name), QString(), QStringLiteral("value"));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    QCommandLineOption reverse(QStringLiteral("reverse"));
    reverse.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(reverse);
}

CommandLine refuse(const QString& reason)
{
    CommandLine result;
    result.action = CommandLine::Action::PrintAndFail;
    result.message =
        QStringLiteral("morvane-gallery: %1\n").arg(reason) + translated("Try \"morvane-gallery --help\".\n");
    return result;
}

CommandLine print(const QString& text)
{
    CommandLine result;
    result.action = CommandLine::Action::PrintAndSucceed;
    result.message = text;
    return result;
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(translated("Shows the dialogs and widgets of the Morvane library."));
    // The built-in help option of the parser mentions another option for Qt's options.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, translated("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, translated("Show the version."));
    const QCommandLineOption page(
        QStringLiteral("page"), translated("Start with the page <name>."), translated("name"));
    const QCommandLineOption language(QStringLiteral("language"),
        translated("Show the texts of the library and of Qt in <language>: de, fr, es, ja, zh_CN, ar or en."),
        translated("language"));
    const QCommandLineOption dark(QStringLiteral("dark"), translated("Use a dark palette."));
    const QCommandLineOption tour(QStringLiteral("tour"),
        translated(
            "Play a user on every page, write a summary and one picture for each step to <dir>, and exit with 0 only "
            "if every step ended as expected."),
        translated("dir"));
    parser.addOptions({help, version, page, language, dark, tour});
    addToolkitOptions(parser);

    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        return print(parser.helpText());
    }
    if (parser.isSet(version)) {
        return print(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion() +
                     QLatin1Char('\n'));
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refuse(translated("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    }
    if (parser.isSet(tour) && parser.value(tour).isEmpty()) {
        return refuse(translated("--tour needs a directory"));
    }

    if (parser.isSet(language) && QLocale(parser.value(language)) == QLocale::c()) {
        return refuse(translated("--language needs a language such as de, not \"%1\"").arg(parser.value(language)));
    }

    CommandLine result;
    result.language = parser.value(language);
    result.page = parser.value(page);
    result.dark = parser.isSet(dark);
    result.tour = parser.isSet(tour);
    result.tourDirectory = parser.value(tour);
    return result;
}

} // namespace gallery
