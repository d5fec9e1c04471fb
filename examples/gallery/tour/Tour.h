// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourStep.h"
#include "tour/Watchdog.h"

#include <QDir>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

#include <vector>

namespace gallery {

class GalleryWindow;
class TourWorkspace;

/** Plays a user on every page of the gallery and saves a picture of each step. */
class Tour : public QObject
{
    Q_OBJECT

public:
    /** @param output an existing directory for the pictures and `summary.txt` */
    Tour(GalleryWindow& window, const TourWorkspace& workspace, const QDir& output);

    /**
     * Starts when the event loop runs. Ends the event loop with 0 if every step ended as expected, otherwise with 1.
     */
    void start();

private:
    void addStep(const QString& group, TourStep step);
    void runNextStep();
    void awaitOutcome();
    void settle();
    void stepDone(const QString& complaint);
    bool savePicture();
    void finish(int exitCode);
    QString fileName() const;
    void say(const QString& line);

    GalleryWindow& m_window;
    QDir m_output;
    std::vector<TourStep> m_steps;
    size_t m_next = 0;
    QElapsedTimer m_stepTime;
    QElapsedTimer m_totalTime;
    QStringList m_summary;
    Watchdog m_watchdog;
};

} // namespace gallery
