// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "GalleryWindow.h"

#include "host/ApplicationSettings.h"
#include "host/HelpLauncher.h"
#include "LogPane.h"
#include "PaddedItemDelegate.h"
#include "Page.h"
#include "PageList.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>

#include <algorithm>

namespace gallery {

namespace {

const char* const geometryKey = "gallery/window geometry";
const char* const pageKey = "gallery/page";
constexpr int logHeight = 160;

} // namespace

GalleryWindow::GalleryWindow() : m_list(new QListWidget), m_stack(new QStackedWidget), m_log(new LogPane)
{
    setWindowTitle(QApplication::applicationDisplayName());
    m_list->setAccessibleName(tr("Pages"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setUniformItemSizes(true);
    m_list->setItemDelegate(new PaddedItemDelegate(m_list->fontMetrics().height() / 2, m_list));

    auto* const columns = new QSplitter(Qt::Horizontal);
    columns->setChildrenCollapsible(false);
    columns->addWidget(m_list);
    columns->addWidget(m_stack);
    columns->setStretchFactor(1, 1);
    auto* const rows = new QSplitter(Qt::Vertical);
    rows->setChildrenCollapsible(false);
    rows->addWidget(columns);
    rows->addWidget(m_log);
    rows->setStretchFactor(0, 1);
    setCentralWidget(rows);

    for (Page* const page : makePages()) {
        addPage(page);
    }
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    addMenus();
    m_list->setMinimumWidth(m_list->sizeHintForColumn(0) + 2 * m_list->fontMetrics().averageCharWidth());
    m_list->setCurrentRow(0);
    m_list->setFocus();
    resize(comfortableSize().boundedTo(screen()->availableSize()));
    rows->setSizes({height() - logHeight, logHeight});
    columns->setSizes({m_list->minimumWidth(), width()});
}

bool GalleryWindow::showPage(const QString& name)
{
    const auto page = std::find_if(m_pages.begin(), m_pages.end(), [&](const Page* p) { return p->name() == name; });
    if (page == m_pages.end()) {
        return false;
    }
    select(static_cast<int>(page - m_pages.begin()));
    return true;
}

void GalleryWindow::restoreState()
{
    auto& settings = morvane::ApplicationSettings::getInstance();
    restoreGeometry(settings.getByteArrayValue(geometryKey));
    showPage(QString::fromUtf8(settings.getByteArrayValue(pageKey)));
}

void GalleryWindow::closeEvent(QCloseEvent* event)
{
    auto& settings = morvane::ApplicationSettings::getInstance();
    settings.depositValue(geometryKey, saveGeometry());
    settings.depositValue(pageKey, m_pages[static_cast<size_t>(m_list->currentRow())]->name().toUtf8());
    QMainWindow::closeEvent(event);
}

void GalleryWindow::addPage(Page* page)
{
    auto* const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(page);
    m_stack->addWidget(scroll);

    auto* const item = new QListWidgetItem(page->title(), m_list);
    item->setSizeHint(QSize(m_list->fontMetrics().horizontalAdvance(page->title()) + 2 * m_list->fontMetrics().height(),
        2 * m_list->fontMetrics().height()));
    connect(page, &Page::reported, m_log, &LogPane::append);
    m_pages.push_back(page);
}

void GalleryWindow::addMenus()
{
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(Qt::CTRL | Qt::Key_Q);

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("&Next Page"), this, [this] { select(m_list->currentRow() + 1); })
        ->setShortcut(Qt::CTRL | Qt::Key_PageDown);
    view->addAction(tr("&Previous Page"), this, [this] { select(m_list->currentRow() - 1); })
        ->setShortcut(Qt::CTRL | Qt::Key_PageUp);
    view->addSeparator();
    view->addAction(tr("&Copy the Log"), m_log, &LogPane::copyAll)->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    view->addAction(tr("Cl&ear the Log"), m_log, &LogPane::clear);

    m_helpMenu = menuBar()->addMenu(tr("&Help"));
    m_helpMenu->addAction(tr("&Contents"), this, [] { morvane::HelpLauncher::getInstance().showHelp("index"); })
        ->setShortcut(QKeySequence::HelpContents);
    m_about = m_helpMenu->addAction(tr("&About"), this, &GalleryWindow::about);
}

void GalleryWindow::select(int row)
{
    m_list->setCurrentRow(std::clamp(row, 0, m_list->count() - 1));
}

void GalleryWindow::about()
{
    QMessageBox::about(this, tr("About"),
        tr("%1 %2\n\nThe dialogs and widgets of the Morvane library, in a program that uses them like any other "
           "program.")
            .arg(QApplication::applicationDisplayName(), QApplication::applicationVersion()));
}

} // namespace gallery
