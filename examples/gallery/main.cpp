// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "Appearance.h"
#include "CommandLine.h"
#include "GalleryWindow.h"
#include "HelpPages.h"
#include "host/InstanceOverride.h"
#include "LogPane.h"
#include "Page.h"
#include "QtShims.h"
#include "tour/Tour.h"
#include "tour/TourWorkspace.h"
#include "ui/qt/util/Translations.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryFile>

#include <cstdio>
#include <memory>

using namespace gallery;

namespace {

constexpr int badUsage = 2;

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("morvane-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(GALLERY_VERSION));
    enableHighDpi();
}

// Uses no GUI application object, so --help and wrong options work without a display.
CommandLine readCommandLine(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return parseCommandLine(QCoreApplication::arguments());
}

int refuse(const QString& reason)
{
    std::fprintf(stderr, "morvane-gallery: %s\n", reason.toUtf8().constData());
    return badUsage;
}

/** The tour plays in English unless it is told otherwise, so that its pictures do not depend on the machine. */
QLocale localeOf(const CommandLine& options)
{
    if (!options.language.isNull()) {
        return QLocale(options.language);
    }
    return options.tour ? QLocale(QLocale::English) : QLocale::system();
}

void useLanguage(const QLocale& locale)
{
    morvane::ui::installTranslations(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

bool makeWritable(const QDir& directory)
{
    return directory.mkpath(QStringLiteral(".")) &&
           QTemporaryFile(directory.filePath(QStringLiteral("probe-XXXXXX"))).open();
}

QString pageNames(const GalleryWindow& window)
{
    QStringList names;
    for (const Page* const page : window.pages()) {
        names.append(page->name());
    }
    return names.join(QStringLiteral(", "));
}

int run(const CommandLine& options, const TourWorkspace* workspace)
{
    HelpPages help;
    const morvane::InstanceOverride<morvane::HelpLauncher> helpOverride(help);
    GalleryWindow window;
    help.setObserver([&window](const std::string& topic) {
        window.log().append(QStringLiteral("Help asked for the topic \"%1\"").arg(QString::fromStdString(topic)));
    });
    if (!workspace) {
        window.restoreState();
    }
    if (!options.page.isNull() && !window.showPage(options.page)) {
        return refuse(
            QStringLiteral("there is no page \"%1\"; the pages are: %2").arg(options.page, pageNames(window)));
    }
    window.show();
    if (!workspace) {
        return QApplication::exec();
    }
    Tour tour(window, *workspace, QDir(options.tourDirectory));
    tour.start();
    return QApplication::exec();
}

int runTour(const CommandLine& options)
{
    if (!makeWritable(QDir(options.tourDirectory))) {
        return refuse(QStringLiteral("cannot write to the directory \"%1\"").arg(options.tourDirectory));
    }
    QApplication::setCursorFlashTime(0); // so that pictures do not depend on the blinking cursor
    QCoreApplication::setAttribute(
        Qt::AA_DontUseNativeDialogs); // the tour cannot send events to the desktop's own dialog
    const TourWorkspace workspace;
    if (!workspace.isUsable()) {
        return refuse(QStringLiteral("cannot write to the temporary directory \"%1\"").arg(QDir::tempPath()));
    }
    return run(options, &workspace);
}

} // namespace

int main(int argc, char** argv)
{
    nameApplication();
    const CommandLine options = readCommandLine(argc, argv);
    if (options.action != CommandLine::Action::Run) {
        const bool fine = options.action == CommandLine::Action::PrintAndSucceed;
        std::fputs(options.message.toUtf8().constData(), fine ? stdout : stderr);
        return fine ? 0 : badUsage;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Morvane Gallery"));
    QApplication::setWindowIcon(applicationIcon());
    useLanguage(localeOf(options));
    if (options.dark) {
        useDarkPalette();
    }
    return options.tour ? runTour(options) : run(options, nullptr);
}
