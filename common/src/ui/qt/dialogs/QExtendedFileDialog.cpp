// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include "host/ApplicationSettings.h"
#include "host/HelpLauncher.h"
#include "ui/qt/dialogs/custom/QtDialogCustomization_p.h"
#include "ui/qt/dialogs/qtdialog/FileDialogAccessibility_p.h"
#include "ui/qt/dialogs/qtdialog/FileDialogLayout_p.h"
#include "ui/qt/dialogs/qtdialog/QtFileDialogNames_p.h"
#include "ui/qt/util/CursorStack_p.h"
#include "ui/qt/util/GuiThread_p.h"
#include "ui/qt/util/ModalArrowCursor_p.h"

#include <QComboBox>
#include <QCursor>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QMessageLogger>
#include <QPointer>
#include <QScopeGuard>
#include <QSet>
#include <QStandardPaths>
#include <QUrl>

#include <boost/filesystem/exception.hpp>

#include <utility>

struct QExtendedFileDialog::Impl
{
    QFileSystemModel* model = nullptr;
    QString shownFolder;
    QSet<QString> readFolders;
    std::shared_ptr<morvane::ui::QtDialogCustomization> customization; // made when the host asks for it
    std::unique_ptr<morvane::ui::FileDialogCustomization> customizationOfHost;

    void beginRun(const std::string& geometryKey) const
    {
        if (customization) {
            auto& settings = morvane::ApplicationSettings::getInstance();
            customization->beginRun(!settings.getByteArrayValue(geometryKey).isEmpty());
        }
    }
    void endRun(int result) const
    {
        if (customization) {
            customization->endRun(result == QDialog::Accepted);
        }
    }
};

QExtendedFileDialog::QExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
    : QExtendedFileDialog(&parent, caption, directory, filter, helpTopic, acceptMode)
{
}

QExtendedFileDialog::QExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
    : QFileDialog(
          parent, QString::fromStdString(caption), QString::fromStdString(directory), QString::fromStdString(filter)),
      m_helpTopic(helpTopic),
      m_geometryPersistenceKey("QExtendedFileDialog/Geometry_v2"),
      m_impl(std::make_unique<Impl>())
{
    init(acceptMode);
    if (!m_helpTopic.empty()) {
        setHelpAction();
    }
}

QExtendedFileDialog::QExtendedFileDialog(QWidget& parent, QFileDialog::AcceptMode acceptMode)
    : QFileDialog(&parent), m_impl(std::make_unique<Impl>())
{
    init(acceptMode);
}

QExtendedFileDialog::~QExtendedFileDialog()
{
    restoreCursor();
    if (m_impl->customization) {
        m_impl->customization->leaveDialog();
    }
}

morvane::ui::FileDialogCustomization* QExtendedFileDialog::customization()
{
    if (!m_impl->customizationOfHost) {
        m_impl->customization = std::make_shared<morvane::ui::QtDialogCustomization>(
            *this, [this](const std::string& key) { setGeometryPersistenceKey(key); });
        m_impl->customizationOfHost = std::make_unique<morvane::ui::FileDialogCustomization>(*m_impl->customization);
        if (isVisible()) {
            m_impl->beginRun(m_geometryPersistenceKey); // for a host that asks for it only now
        }
    }
    return m_impl->customizationOfHost.get();
}

void QExtendedFileDialog::setGeometryPersistenceKey(std::string key)
{
    m_geometryPersistenceKey = std::move(key);
}

void QExtendedFileDialog::setDefaultSize(QSize size)
{
    m_defaultSize = size;
}

void QExtendedFileDialog::performSelectedFileValidation(bool validate)
{
    m_performSelectedFileValidation = validate;
}

void QExtendedFileDialog::setDontConfirmOverwrite(bool on)
{
    setOption(QFileDialog::DontConfirmOverwrite, on);
}

void QExtendedFileDialog::setShowDirectoriesOnly(bool on)
{
    setOption(QFileDialog::ShowDirsOnly, on);
}

void QExtendedFileDialog::prepareToShow()
{
    restoreSizeAndPosition();
    restoreFilters();
    addSidebarUrls();
    morvane::ui::makeListsReachable(*this);
    morvane::ui::showTypesOfFilesOnly(*this);
}

void QExtendedFileDialog::show()
{
    prepareToShow();
    m_impl->beginRun(m_geometryPersistenceKey);
    QWidget::show();
    saveSizeAndPosition();
}

int QExtendedFileDialog::exec()
{
    prepareToShow();
    m_impl->beginRun(m_geometryPersistenceKey);
    const QPointer<QExtendedFileDialog> self(this);
    const auto customization = m_impl->customization; // may have an exception for the caller
    const bool waits = m_overrideCursorSet || isBeingRead(m_impl->model->rootPath());
    restoreCursor(); // the wait cursor must be above the arrow on the stack
    const morvane::ui::ModalArrowCursor arrow;
    const auto endWait = qScopeGuard([self] {
        if (self) {
            self->restoreCursor();
        }
    });
    if (waits) {
        waitForFolder();
    }
    const int result = QDialog::exec();
    if (self) {
        restoreCursor();
        saveSizeAndPosition();
        m_impl->endRun(result);
    }
    if (customization) {
        customization->rethrow();
    }
    return result;
}

void QExtendedFileDialog::done(int result)
{
    const QPointer<QExtendedFileDialog> self(this);
    const auto customization = m_impl->customization;
    if (result == QDialog::Accepted && customization && (!customization->mayAccept(selectedFiles()) || !self)) {
        return;
    }
    QFileDialog::done(result);
    if (self) {
        m_impl->endRun(result);
    }
}

void QExtendedFileDialog::accept()
{
    const QString text = m_fileNameEdit->text();
    if (!text.contains(QLatin1Char('*'))) {
        if (m_performSelectedFileValidation) {
            QFileDialog::accept();
        } else {
            QDialog::accept(); // without the checks of QFileDialog. NOLINT(bugprone-parent-virtual-call)
        }
        return;
    }

    if (m_savedNameFilters.isEmpty()) {
        m_savedNameFilters = nameFilters();
    }
    QStringList filters = nameFilters();
    const QString selected = selectedNameFilter();
    const QString description = selected.left(selected.indexOf(QLatin1Char('(')));
    // setNameFilters() simplifies white space, and selectNameFilter() expects the simplified text.
    m_modifiedNameFilter = QString(description + QLatin1Char('(') + text + QLatin1Char(')')).simplified();
    // Searched in the caller's list, because a changed filter may have the same text as another one.
    const int position = m_savedNameFilters.size() == filters.size()
                             ? m_savedNameFilters.indexOf(m_savedNameFilters.value(m_fileTypeCombo->currentIndex()))
                             : filters.indexOf(selected);
    if (position >= 0) {
        filters[position] = m_modifiedNameFilter;
    }

    m_fileTypeCombo->blockSignals(true);
    setNameFilters(filters);
    selectNameFilter(m_modifiedNameFilter);
    if (position >= 0) {
        m_fileTypeCombo->setCurrentIndex(position); // another filter may have the same text
    }
    m_fileTypeCombo->blockSignals(false);
    m_fileNameEdit->setText(text); // Qt has appended the extension of the filter
    connect(m_fileTypeCombo, &QComboBox::textActivated, this, &QExtendedFileDialog::revertModifiedFilterAndSelect,
        Qt::UniqueConnection);
}

void QExtendedFileDialog::restoreFilters()
{
    if (m_savedNameFilters.isEmpty()) {
        return;
    }
    setNameFilters(m_savedNameFilters);
    m_savedNameFilters.clear();
    m_modifiedNameFilter.clear();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the slot is known by this signature
void QExtendedFileDialog::revertModifiedFilterAndSelect(QString filter)
{
    if (m_modifiedNameFilter.isEmpty() || m_modifiedNameFilter == filter) {
        return;
    }
    disconnect(m_fileTypeCombo, &QComboBox::textActivated, this, &QExtendedFileDialog::revertModifiedFilterAndSelect);
    const QString current = selectedNameFilter();
    restoreFilters();
    selectNameFilter(current);
}

void QExtendedFileDialog::launchHelp()
{
    morvane::HelpLauncher::getInstance().showHelp(m_helpTopic);
}

void QExtendedFileDialog::onDirectoryLoaded(const QString& path)
{
    m_impl->readFolders.insert(keyOf(path));
    restoreCursor();
    // The model may have read another folder, for the suggestions. Then the dialog still waits for its own folder.
    if (isVisible() && m_impl->shownFolder == m_impl->model->rootPath() && isBeingRead(m_impl->shownFolder)) {
        waitForFolder();
    }
}

void QExtendedFileDialog::onRootPathChanged(const QString& path)
{
    const bool again = path == m_impl->shownFolder;
    if (!again) {
        // The model reads this folder again when the user comes back to it. It reads no other folder twice.
        m_impl->readFolders.remove(keyOf(m_impl->shownFolder));
        m_impl->shownFolder = path;
    }
    if (again ? QFileInfo(path).isDir() : isBeingRead(path)) {
        waitForFolder();
    }
}

bool QExtendedFileDialog::isBeingRead(const QString& folder) const
{
    return QFileInfo(folder).isDir() && !m_impl->readFolders.contains(keyOf(folder));
}

/** The same text for all spellings of the path of a folder. */
QString QExtendedFileDialog::keyOf(const QString& folder) const
{
    const QModelIndex index = m_impl->model->index(folder);
    return index.isValid() ? m_impl->model->filePath(index) : folder;
}

void QExtendedFileDialog::waitForFolder()
{
    if (!m_overrideCursorSet) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        m_overrideCursorSet = true;
    }
}

void QExtendedFileDialog::init(QFileDialog::AcceptMode acceptMode)
{
    morvane::ui::expectGuiThread("QExtendedFileDialog");
    setAcceptMode(acceptMode);
    setFileMode(acceptMode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // This also makes Qt create the child widgets that are looked up below.
    setOption(QFileDialog::DontUseNativeDialog, true);

    m_fileTypeCombo = findChild<QComboBox*>(morvane::ui::qtFileDialogNames::fileTypeCombo);
    m_fileNameEdit = findChild<QLineEdit*>(morvane::ui::qtFileDialogNames::fileNameEdit);
    const auto* const view = findChild<QListView*>(morvane::ui::qtFileDialogNames::listView);
    m_impl->model = qobject_cast<QFileSystemModel*>(view->model());
    m_impl->shownFolder = m_impl->model->rootPath();
    connect(m_impl->model, SIGNAL(directoryLoaded(const QString&)), this, SLOT(onDirectoryLoaded(const QString&)));
    connect(m_impl->model, SIGNAL(rootPathChanged(const QString&)), this, SLOT(onRootPathChanged(const QString&)));
    // For an empty name, Qt's completer selects the open folder itself, which is not visible. A selected row takes
    // precedence over a name that is typed then: accepting would enter the folder and clear the name.
    connect(m_fileNameEdit, &QLineEdit::textChanged, view, [view](const QString& text) {
        if (text.isEmpty()) {
            view->selectionModel()->clearSelection();
        }
    });
}

void QExtendedFileDialog::setHelpAction()
{
    auto* const buttons = findChild<QDialogButtonBox*>(morvane::ui::qtFileDialogNames::buttonBox);
    buttons->addButton(QDialogButtonBox::Help);
    connect(buttons, SIGNAL(helpRequested()), this, SLOT(launchHelp()));
}

void QExtendedFileDialog::addSidebarUrls()
{
    if (!morvane::ApplicationSettings::getInstance().getByteArrayValue(m_geometryPersistenceKey).isEmpty()) {
        return;
    }
    morvane::ui::showListsWhole(*this);
    try {
        QList<QUrl> urls = sidebarUrls();
        for (const auto location :
            {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation}) {
            const QStringList places = QStandardPaths::standardLocations(location);
            if (!places.isEmpty()) {
                urls.append(QUrl::fromLocalFile(places.first()));
            }
        }
        setSidebarUrls(urls);
    } catch (const boost::filesystem::filesystem_error& error) {
        QMessageLogger().debug("Unable to add default storage locations to sidebar: %s", error.what());
    }
}

void QExtendedFileDialog::saveSizeAndPosition()
{
    morvane::ApplicationSettings::getInstance().depositValue(m_geometryPersistenceKey, saveGeometry());
}

void QExtendedFileDialog::restoreSizeAndPosition()
{
    const QByteArray stored = morvane::ApplicationSettings::getInstance().getByteArrayValue(m_geometryPersistenceKey);
    if (!stored.isEmpty()) {
        restoreGeometry(stored);
    } else if (m_defaultSize.width() >= 1 && m_defaultSize.height() >= 1) {
        resize(m_defaultSize);
    }
}

void QExtendedFileDialog::restoreCursor()
{
    if (m_overrideCursorSet) {
        m_overrideCursorSet = false;
        morvane::ui::takeOffOverrideCursor(Qt::WaitCursor);
    }
}
