// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/Tour.h"

#include "GalleryWindow.h"
#include "Page.h"
#include "tour/TourPicture.h"
#include "tour/TourWorkspace.h"

#include <QApplication>
#include <QFile>
#include <QTimer>

#include <cstdio>

namespace gallery {

namespace {

constexpr int pollMs = 20;
constexpr int stepLimitMs = 20000;
constexpr std::chrono::seconds hangLimit(60);
// A real screen shows a window some time after it was painted.
constexpr int screenDelayMs = 150;

QString seconds(qint64 milliseconds)
{
    return QString::number(static_cast<double>(milliseconds) / 1000.0, 'f', 2) + QStringLiteral(" s");
}

bool isOffscreen()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

} // namespace

Tour::Tour(GalleryWindow& window, const TourWorkspace& workspace, const QDir& output)
    : m_window(window), m_output(output), m_watchdog(hangLimit)
{
    for (Page* const page : window.pages()) {
        addStep(page->name(), window.stepToPage(*page));
        for (TourStep& step : page->tourSteps(workspace)) {
            addStep(page->name(), std::move(step));
        }
    }
    for (TourStep& step : window.closingSteps()) {
        addStep(QStringLiteral("window"), std::move(step));
    }
}

void Tour::start()
{
    if (isOffscreen()) {
        // That screen is virtual and small.
        m_window.resize(GalleryWindow::comfortableSize());
    }
    m_totalTime.start();
    QTimer::singleShot(0, this, &Tour::runNextStep);
}

void Tour::addStep(const QString& group, TourStep step)
{
    step.name = group + QLatin1Char('-') + step.name;
    m_steps.push_back(std::move(step));
}

void Tour::runNextStep()
{
    if (m_next == m_steps.size()) {
        finish(0);
        return;
    }
    m_stepTime.start();
    // Both are queued, so the tour continues inside a modal event loop that the action opens.
    QTimer::singleShot(0, this, [action = m_steps[m_next].action] { action(); });
    QTimer::singleShot(pollMs, this, &Tour::awaitOutcome);
}

void Tour::awaitOutcome()
{
    m_watchdog.beat();
    const QString complaint = m_steps[m_next].check();
    if (complaint.isEmpty()) {
        settle();
    } else if (m_stepTime.elapsed() > stepLimitMs) {
        stepDone(complaint);
    } else {
        QTimer::singleShot(pollMs, this, &Tour::awaitOutcome);
    }
}

void Tour::settle()
{
    // The state must still be right when the picture is taken.
    QTimer::singleShot(isOffscreen() ? pollMs : screenDelayMs, this, [this] { stepDone(m_steps[m_next].check()); });
}

void Tour::stepDone(const QString& complaint)
{
    const bool pictured = savePicture();
    const QString problem =
        complaint.isEmpty() && !pictured ? QStringLiteral("the picture could not be written") : complaint;
    if (!problem.isEmpty()) {
        say(QStringLiteral("FAILED  %1: %2").arg(fileName(), problem));
        finish(1);
        return;
    }
    say(QStringLiteral("ok      %1  %2").arg(fileName(), seconds(m_stepTime.elapsed())));
    ++m_next;
    runNextStep();
}

bool Tour::savePicture()
{
    // Compressing well would take most of the tour's time.
    constexpr int quickCompression = 80;
    return takeTourPicture(m_window).save(m_output.filePath(fileName()), "PNG", quickCompression);
}

void Tour::finish(int exitCode)
{
    const bool passed = exitCode == 0;
    say(QStringLiteral("%1: %2 of %3 steps as expected, %4")
            .arg(passed ? QStringLiteral("tour passed") : QStringLiteral("TOUR FAILED"))
            .arg(m_next)
            .arg(m_steps.size())
            .arg(seconds(m_totalTime.elapsed())));
    QFile file(m_output.filePath(QStringLiteral("summary.txt")));
    const QByteArray text = m_summary.join(QLatin1Char('\n')).toUtf8() + '\n';
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    if (!written) {
        std::fprintf(stderr, "morvane-gallery: the summary could not be written\n");
    }
    // This also ends the nested event loops of dialogs that are still open.
    QCoreApplication::exit(written ? exitCode : 1);
}

QString Tour::fileName() const
{
    return QStringLiteral("%1-%2.png").arg(m_next + 1, 3, 10, QLatin1Char('0')).arg(m_steps[m_next].name);
}

void Tour::say(const QString& line)
{
    m_summary.append(line);
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace gallery
