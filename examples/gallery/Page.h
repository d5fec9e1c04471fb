// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourStep.h"

#include <QString>
#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace gallery {

class TourWorkspace;

/**
 * One page of the gallery: a heading, an explanation, and the contents that the subclass adds to body().
 *
 * To add a page, write a subclass in pages/ and add its name to the list in CMakeLists.txt.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param name     name for `--page` and for the tour's pictures: lower case, no blanks
     * @param title    entry in the list, and heading of the page
     * @param sentence explains what a new user can try here
     */
    Page(const QString& name, const QString& title, const QString& sentence);

    QString name() const { return m_name; }
    QString title() const { return m_title; }

    /**
     * The steps of the tour on this page. They run after the page is shown. A step may depend on the steps before it.
     * @param workspace real files for the steps, and a record of opened help pages; outlives the steps
     */
    virtual std::vector<TourStep> tourSteps(const TourWorkspace& workspace) = 0;

Q_SIGNALS:
    /** Emitted with one line of text for the log pane. */
    void reported(const QString& event);

protected:
    QVBoxLayout& body() { return *m_body; }

private:
    QString m_name;
    QString m_title;
    QVBoxLayout* m_body;
};

} // namespace gallery
