#pragma once

#include "tour/TourStep.h"

#include <QString>
#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace gallery {

class TourWorkspace;

/**
 * One page of the gallery: a heading, a sentence, and whatever the subclass puts into body().
 *
 * To add a page, write a subclass in pages/ and add its name to the list in CMakeLists.txt.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param name     what `--page` and the names of the tour's pictures call it: lower case, no blanks
     * @param title    its entry in the list and its heading
     * @param sentence what a newcomer can try here
     */
    Page(const QString& name, const QString& title, const QString& sentence);

    QString name() const { return m_name; }
    QString title() const { return m_title; }

    /**
     * What the tour does on this page, once the page is shown. The steps may rely on the steps before them.
     * @param workspace real files to work on, and what was opened; outlives the steps
     */
    virtual std::vector<TourStep> tourSteps(const TourWorkspace& workspace) = 0;

Q_SIGNALS:
    /** Something that the log pane should show, one line. */
    void reported(const QString& event);

protected:
    QVBoxLayout& body() { return *m_body; }

private:
    QString m_name;
    QString m_title;
    QVBoxLayout* m_body;
};

} // namespace gallery
