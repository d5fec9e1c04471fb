// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"
#include "LogPane.h"
#include "Page.h"
#include "tour/TourUser.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>
#include <iterator>

namespace gallery {

using tour::expect;

TourStep GalleryWindow::stepToPage(const Page& page)
{
    const auto row = static_cast<int>(std::find(m_pages.begin(), m_pages.end(), &page) - m_pages.begin());
    return {QStringLiteral("page"), [this, row] { tour::clickItem(*m_list, m_list->model()->index(row, 0)); },
        [this, row] {
            return expect(m_list->currentRow() == row && m_stack->currentIndex() == row, "the page is not shown");
        }};
}

std::vector<TourStep> GalleryWindow::closingSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("next-page-by-keyboard"),
        [this] {
            select(0);
            tour::press(*m_list, Qt::Key_Down);
        },
        [this] { return expect(m_stack->currentIndex() == 1, "Down does not show the second page"); }});
    for (auto& more : {aboutSteps(), logSteps()}) {
        std::copy(more.begin(), more.end(), std::back_inserter(steps));
    }
    return steps;
}

std::vector<TourStep> GalleryWindow::aboutSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("help-menu"), [this] { tour::clickAction(*menuBar(), *m_helpMenu->menuAction()); },
        [this] { return expect(m_helpMenu->isVisible(), "the menu is not open"); }});
    steps.push_back({QStringLiteral("about"), [this] { tour::clickAction(*m_helpMenu, *m_about); },
        [] { return expect(tour::modal<QMessageBox>() != nullptr, "there is no message about the program"); }});
    steps.push_back(
        {QStringLiteral("about-closed"), [] { tour::press(*QApplication::activeModalWidget(), Qt::Key_Escape); },
            [] { return expect(!QApplication::activeModalWidget(), "the message is still open"); }});
    return steps;
}

std::vector<TourStep> GalleryWindow::logSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("copy-log"), [this] { tour::click(m_log->copyButton()); },
        [this] {
            const QString copied = QApplication::clipboard()->text();
            return expect(!copied.isEmpty() && copied == m_log->text(), "the clipboard does not contain the log");
        }});
    steps.push_back({QStringLiteral("clear-log"), [this] { tour::click(m_log->clearButton()); },
        [this] {
            return expect(m_log->text().isEmpty() && !m_log->clearButton().isEnabled(), "the log is not empty");
        }});
    return steps;
}

} // namespace gallery
