// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tour/TourStep.h"

#include <QMainWindow>

#include <vector>

class QAction;
class QListWidget;
class QMenu;
class QStackedWidget;

namespace gallery {

class LogPane;
class Page;

/** The main window: the list of pages at the left, the page at the right, the log below. */
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    GalleryWindow();

    const std::vector<Page*>& pages() const { return m_pages; }
    /** Shows the page with this name. @return false if there is none */
    bool showPage(const QString& name);
    /** The size that shows every page completely. The window opens with it if the screen is large enough. */
    static QSize comfortableSize() { return QSize(1080, 840); }
    LogPane& log() { return *m_log; }

    /** Restores the size, position and page of the last run. */
    void restoreState();

    /** The tour's steps that open @p page, as a user would. */
    TourStep stepToPage(const Page& page);
    /** The tour's steps for the window itself, after all pages. */
    std::vector<TourStep> closingSteps();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPage(Page* page);
    void addMenus();
    void select(int row);
    void about();
    std::vector<TourStep> aboutSteps();
    std::vector<TourStep> logSteps();

    std::vector<Page*> m_pages;
    QListWidget* m_list;
    QStackedWidget* m_stack;
    LogPane* m_log;
    QMenu* m_helpMenu = nullptr;
    QAction* m_about = nullptr;
};

} // namespace gallery
