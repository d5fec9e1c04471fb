// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/qtdialog/FileDialogLayout_p.h"

#include "ui/qt/dialogs/qtdialog/QtFileDialogNames_p.h"

#include <QComboBox>
#include <QDateTime>
#include <QEvent>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QScrollBar>
#include <QSplitter>
#include <QTreeView>

#include <algorithm>
#include <numeric>
#include <vector>

namespace morvane::ui {

namespace {

const char* const hiddenHere = "morvaneHidden"; // marks widgets that were hidden here and not by the host
const QString helperName = QStringLiteral("morvaneFileDialogLists");
constexpr int nameColumn = 0;
constexpr int dateColumn = 3;

/** A child of the dialog. Sets the width of each list when the list is shown. */
class ListWidths : public QObject
{
public:
    ListWidths(QFileDialog& dialog, QListView& sidebar, QTreeView& files)
        : QObject(&dialog), m_sidebar(sidebar), m_files(files)
    {
        setObjectName(helperName);
        sidebar.installEventFilter(this);
        files.installEventFilter(this);
        if (auto* const model = dialog.findChild<QFileSystemModel*>()) {
            m_loaded = connect(model, &QFileSystemModel::directoryLoaded, this, &ListWidths::onLoaded);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched == &m_files) {
            m_files.removeEventFilter(this);
            fitColumns();
        } else if (event->type() == QEvent::Show && watched == &m_sidebar) {
            m_sidebar.removeEventFilter(this);
            fitSidebar();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void onLoaded(const QString& folder)
    {
        const auto* const model = qobject_cast<QFileSystemModel*>(sender());
        if (!model || model->rootPath() != folder) {
            return;
        }
        disconnect(m_loaded);
        // The list has the new rows only after all other receivers of the signal were called.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_files.isVisible()) {
                    fitColumns();
                }
            },
            Qt::QueuedConnection);
    }

    void fitSidebar()
    {
        auto* const splitter = qobject_cast<QSplitter*>(m_sidebar.parentWidget());
        if (!splitter || splitter->count() != 2) {
            return;
        }
        const QList<int> sizes = splitter->sizes();
        const int whole = sizes.first() + sizes.last();
        const int wanted = m_sidebar.sizeHintForColumn(0) + m_sidebar.width() - m_sidebar.viewport()->width();
        const int width = std::min(wanted, whole / 3);
        if (width > sizes.first()) {
            splitter->setSizes({width, whole - width});
        }
    }

    void fitColumns()
    {
        m_files.doItemsLayout(); // shows the scroll bar, which makes the viewport narrower
        const std::vector<int> needed = neededWidths();
        std::vector<int> widths = needed;
        for (int column = nameColumn + 1; column < m_files.header()->count(); ++column) {
            auto& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, m_usual[static_cast<std::size_t>(column)]);
        }
        const int room = m_files.viewport()->width();
        const int usualName = m_files.fontMetrics().horizontalAdvance(QStringLiteral("measurement.data"));
        if (std::accumulate(widths.begin() + 1, widths.end(), usualName) > room) {
            widths = needed; // leaves more room for the names
        }
        const int others = std::accumulate(widths.begin() + 1, widths.end(), 0);
        widths.front() = std::max(room - others, usualName / 2);
        for (int column = nameColumn; column < m_files.header()->count(); ++column) {
            m_files.setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
        }
    }

    /** The widths that the titles and the texts need. */
    std::vector<int> neededWidths()
    {
        std::vector<int> widths;
        const bool isEmpty = m_files.model()->rowCount(m_files.rootIndex()) == 0;
        const bool isFirst = m_usual.empty();
        for (int column = nameColumn; column < m_files.header()->count(); ++column) {
            if (isFirst) {
                m_usual.push_back(m_files.columnWidth(column)); // Qt's own width
            }
            m_files.resizeColumnToContents(column);
            widths.push_back(
                std::max(m_files.columnWidth(column), column == dateColumn && isEmpty ? widthOfDate() : 0));
        }
        return widths;
    }

    /** The width of a date, used as long as nothing is listed. */
    int widthOfDate() const
    {
        const QDateTime wide(QDate(2000, 12, 28), QTime(20, 58, 58));
        const QString text = QLocale::system().toString(wide, QLocale::ShortFormat);
        const int margins = 4 * (m_files.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_files) + 1);
        return m_files.fontMetrics().horizontalAdvance(text) + margins;
    }

    QListView& m_sidebar;
    QTreeView& m_files;
    QMetaObject::Connection m_loaded;
    std::vector<int> m_usual; ///< widths that Qt gives the columns
};

} // namespace

void showListsWhole(QFileDialog& dialog)
{
    auto* const sidebar = dialog.findChild<QListView*>(qtFileDialogNames::sidebar);
    auto* const files = dialog.findChild<QTreeView*>(qtFileDialogNames::treeView);
    if (sidebar && files && !dialog.findChild<QObject*>(helperName)) {
        new ListWidths(dialog, *sidebar, *files);
    }
}

void showTypesOfFilesOnly(const QFileDialog& dialog)
{
    const QFileDialog::FileMode mode = dialog.fileMode();
    // One of the two modes for directories is deprecated, and naming it is a warning.
    const bool picksFolders =
        mode != QFileDialog::AnyFile && mode != QFileDialog::ExistingFile && mode != QFileDialog::ExistingFiles;
    const QList<QWidget*> row = {dialog.findChild<QLabel*>(qtFileDialogNames::fileTypeLabel),
        dialog.findChild<QComboBox*>(qtFileDialogNames::fileTypeCombo)};
    for (QWidget* const widget : row) {
        if (widget && picksFolders && !widget->isHidden()) {
            widget->hide();
            widget->setProperty(hiddenHere, true);
        } else if (widget && !picksFolders && widget->property(hiddenHere).toBool()) {
            widget->show();
            widget->setProperty(hiddenHere, false);
        }
    }
}

} // namespace morvane::ui
