#include "ui/qt/dialogs/shell/FileDialogWindow.h"

#include "ui/qt/dialogs/shell/TypedNames.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace morvane::ui {

namespace {

/** How a type is written where Qt takes it apart again. */
QString nativeFilter(const FileTypeEntry& type)
{
    const QString patterns = type.patterns.isEmpty() ? QStringLiteral("*") : type.patterns.join(QLatin1Char(' '));
    return QStringLiteral("%1 (%2)").arg(type.description, patterns).simplified();
}

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

QString nameForMessage(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

FileDialogWindow::FileDialogWindow(QWidget* owner, const FileDialogSettings& settings, FileDialogObserver& observer)
    : QFileDialog(owner), m_settings(settings), m_observer(observer), m_folder(settings.folder)
{
    setOption(QFileDialog::DontUseNativeDialog, settings.usesWidgets);
    applySettings();
    m_nameEdit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    m_typeCombo = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    m_model = findChild<QFileSystemModel*>();
    if (consistsOfWidgets()) {
        setUpWidgets();
        setUpTypeCombo();
        watchWidgets();
    } else {
        setUpNativeTypes();
    }
    setTypedName(settings.fileName);
}

FileDialogWindow::~FileDialogWindow() = default;

void FileDialogWindow::applySettings()
{
    setAcceptMode(m_settings.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // Whether files must exist is checked in accept(): Qt would disable the button without saying why.
    const bool several = m_settings.allowsSeveral && !m_settings.usesWidgets;
    setFileMode(m_settings.picksFolders ? QFileDialog::Directory
                : several               ? QFileDialog::ExistingFiles
                                        : QFileDialog::AnyFile);
    setOption(QFileDialog::ShowDirsOnly, m_settings.picksFolders);
    setOption(QFileDialog::DontConfirmOverwrite, !m_settings.asksBeforeOverwriting);
    if (m_settings.showsHidden) {
        setFilter(filter() | QDir::Hidden);
    }
    setDirectory(m_settings.folder);
    setTexts(m_settings.title, m_settings.acceptLabel, m_settings.fileNameLabel);
}

void FileDialogWindow::setTexts(const QString& title, const QString& acceptLabel, const QString& fileNameLabel)
{
    if (!title.isEmpty()) {
        setWindowTitle(title);
    }
    if (!acceptLabel.isEmpty()) {
        setLabelText(QFileDialog::Accept, acceptLabel);
    }
    if (!fileNameLabel.isEmpty()) {
        setLabelText(QFileDialog::FileName, fileNameLabel);
    }
}

void FileDialogWindow::setUpWidgets()
{
    if (m_settings.allowsSeveral) {
        for (const char* const name : {"listView", "treeView"}) {
            if (auto* const view = findChild<QAbstractItemView*>(QLatin1String(name))) {
                view->setSelectionMode(QAbstractItemView::ExtendedSelection);
            }
        }
    }
    if (m_settings.types.empty() || m_settings.picksFolders) {
        m_typeCombo->hide();
        if (auto* const label = findChild<QLabel*>(QStringLiteral("fileTypeLabel"))) {
            label->hide();
        }
    }
}

void FileDialogWindow::setUpTypeCombo()
{
    if (m_settings.types.empty()) {
        return;
    }
    // Qt is given filters without meaning, one for each type: it simplifies descriptions, and in save mode it would
    // rewrite the typed suffix after the first pattern. What is shown and what is filtered is set here.
    QStringList placeholders;
    QStringList descriptions;
    for (const FileTypeEntry& type : m_settings.types) {
        placeholders.append(QStringLiteral("*"));
        descriptions.append(type.description);
    }
    setNameFilters(placeholders);
    const QSignalBlocker blocker(m_typeCombo);
    m_typeCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_typeCombo->clear();
    m_typeCombo->addItems(descriptions);
    m_typeCombo->setCurrentIndex(m_settings.typeIndex);
    applyPatterns();
}

void FileDialogWindow::setUpNativeTypes()
{
    QStringList filters;
    for (const FileTypeEntry& type : m_settings.types) {
        filters.append(nativeFilter(type));
    }
    if (filters.isEmpty()) {
        return;
    }
    setNameFilters(filters);
    selectNameFilter(filters.at(m_settings.typeIndex));
    connect(this, &QFileDialog::filterSelected, this, &FileDialogWindow::onNativeTypePicked);
    connect(this, &QFileDialog::directoryEntered, this, [this] {
        m_folderPending = true;
        deliverLater();
    });
    connect(this, &QFileDialog::currentChanged, this, [this] {
        m_selectionPending = true;
        deliverLater();
    });
}

void FileDialogWindow::watchWidgets()
{
    connect(m_typeCombo, QOverload<int>::of(&QComboBox::activated), this, &FileDialogWindow::onTypePicked);
    connect(m_nameEdit, &QLineEdit::textChanged, this, &FileDialogWindow::updateAcceptButton);
    connect(m_model, &QFileSystemModel::rootPathChanged, this, [this] {
        m_folderPending = true;
        deliverLater();
    });
    if (auto* const view = findChild<QAbstractItemView*>(QStringLiteral("listView"))) {
        connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            m_selectionPending = true;
            deliverLater();
        });
    }
}

void FileDialogWindow::run()
{
    if (auto* const buttons = findChild<QDialogButtonBox*>()) {
        // It stands before the list of types in the order of Tab, and would pass the focus past it to a button.
        buttons->setFocusProxy(nullptr);
    }
    const QPointer<FileDialogWindow> self(this);
    do {
        m_again = false;
        exec();
    } while (self && m_again);
}

QString FileDialogWindow::typedName() const
{
    return m_nameEdit ? m_nameEdit->text() : QFileInfo(selectedFiles().value(0)).fileName();
}

void FileDialogWindow::setTypedName(const QString& name)
{
    if (m_nameEdit) {
        m_nameEdit->setText(name);
        updateAcceptButton();
    } else if (!name.isEmpty()) {
        selectFile(name);
    }
}

void FileDialogWindow::setTypeIndex(int index)
{
    m_settings.typeIndex = index;
    if (m_typeCombo) {
        m_typeCombo->setCurrentIndex(index);
        applyPatterns();
    } else {
        selectNameFilter(nativeFilter(m_settings.types.at(static_cast<std::size_t>(index))));
    }
}

void FileDialogWindow::setFolder(const QString& folder)
{
    setDirectory(folder);
    deliverFolder();
}

QStringList FileDialogWindow::selectedPaths() const
{
    QStringList paths;
    if (!consistsOfWidgets()) {
        return selectedFiles();
    }
    if (const auto* const view = findChild<QAbstractItemView*>(QStringLiteral("listView"))) {
        for (const QModelIndex& index : view->selectionModel()->selectedRows()) {
            paths.append(m_model->filePath(index));
        }
    }
    if (paths.isEmpty() && !m_nameEdit->text().isEmpty()) {
        paths = chosenPaths();
    }
    return paths;
}

void FileDialogWindow::applyPatterns()
{
    if (m_settings.picksFolders || m_settings.types.empty()) {
        return;
    }
    m_model->setNameFilters(m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex)).patterns);
}

void FileDialogWindow::updateAcceptButton()
{
    const auto* const box = findChild<QDialogButtonBox*>();
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole) {
            button->setEnabled(m_settings.picksFolders || !m_nameEdit->text().isEmpty());
        }
    }
}

void FileDialogWindow::onTypePicked(int index)
{
    const bool changed = index != m_settings.typeIndex;
    m_settings.typeIndex = index;
    applyPatterns(); // Qt has just put its placeholder there, also when the same type was picked again
    if (changed) {
        m_observer.onTypeChanged(index);
    }
}

void FileDialogWindow::onNativeTypePicked(const QString& filter)
{
    const auto found = std::find_if(m_settings.types.begin(), m_settings.types.end(),
        [&filter](const FileTypeEntry& type) { return nativeFilter(type) == filter; });
    const auto index = static_cast<int>(found - m_settings.types.begin());
    if (found != m_settings.types.end() && index != m_settings.typeIndex) {
        m_settings.typeIndex = index;
        m_observer.onTypeChanged(index);
    }
}

void FileDialogWindow::deliverLater()
{
    // These changes are reported from deep inside Qt's models, where the window must not be changed or destroyed.
    if (!m_deliveryPosted) {
        m_deliveryPosted = true;
        QMetaObject::invokeMethod(
            this, [this] { deliver(); }, Qt::QueuedConnection);
    }
}

void FileDialogWindow::deliver()
{
    const QPointer<FileDialogWindow> self(this);
    m_deliveryPosted = false;
    if (m_folderPending) {
        deliverFolder();
    }
    if (self && m_selectionPending) {
        m_selectionPending = false;
        m_observer.onSelectionChanged();
    }
}

void FileDialogWindow::deliverFolder()
{
    const QPointer<FileDialogWindow> self(this);
    m_folderPending = false;
    const QString folder = directory().absolutePath();
    if (folder == m_folder) {
        return;
    }
    const bool allowed = m_observer.mayEnterFolder(folder);
    if (!self || directory().absolutePath() != folder) {
        return;
    }
    if (!allowed) {
        setDirectory(m_folder);
        return;
    }
    m_folder = folder;
    m_observer.onFolderChanged(folder);
}

void FileDialogWindow::accept()
{
    const QPointer<FileDialogWindow> self(this);
    deliver(); // the observer hears of what led to the choice before the choice
    if (!self) {
        return;
    }
    const QStringList paths = consistsOfWidgets() ? chosenPaths() : selectedFiles();
    if (paths.isEmpty() || (consistsOfWidgets() && (enterFolderAmong(paths) || !exist(paths)))) {
        return;
    }
    if (!self || (consistsOfWidgets() && m_settings.saving && !mayReplace(paths.first())) || !self) {
        return;
    }
    const bool accepted = m_observer.mayAccept(paths);
    if (self && accepted) {
        done(QDialog::Accepted);
    } else if (self && !consistsOfWidgets() && isVisible()) {
        m_again = true;
        done(QDialog::Rejected);
    }
}

QStringList FileDialogWindow::chosenPaths() const
{
    const QString text = m_nameEdit->text();
    if (m_settings.picksFolders && text.isEmpty()) {
        return QStringList(directory().absolutePath());
    }
    QStringList paths = pathsOfTypedText(text, directory().absolutePath(), m_settings.allowsSeveral);
    for (QString& path : paths) {
        const bool lacksSuffix = QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(path);
        if (lacksSuffix && !m_settings.defaultSuffix.isEmpty() && !m_settings.picksFolders) {
            path += QLatin1Char('.') + m_settings.defaultSuffix;
        }
    }
    return paths;
}

bool FileDialogWindow::enterFolderAmong(const QStringList& paths)
{
    const auto found = std::find_if(paths.begin(), paths.end(), isFolder);
    if (m_settings.picksFolders || found == paths.end()) {
        return false;
    }
    setDirectory(*found);
    m_nameEdit->clear();
    return true;
}

bool FileDialogWindow::exist(const QStringList& paths)
{
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (m_settings.picksFolders && !info.isDir()) {
            ask(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                    .arg(nameForMessage(path)),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
        if (m_settings.fileMustExist && !info.exists()) {
            ask(tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(nameForMessage(path)),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
        if (m_settings.pathMustExist && !isFolder(info.path())) {
            ask(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
                    .arg(nameForMessage(info.path())),
                QMessageBox::Ok, QMessageBox::Ok);
            return false;
        }
    }
    return true;
}

bool FileDialogWindow::mayReplace(const QString& path)
{
    if (!m_settings.asksBeforeOverwriting || m_settings.picksFolders || !QFileInfo::exists(path)) {
        return true;
    }
    const QPointer<FileDialogWindow> self(this);
    const auto answer = m_observer.mayOverwrite(path);
    if (!self || !isVisible() || answer != FileDialogObserver::OverwriteAnswer::Ask) {
        return self && answer == FileDialogObserver::OverwriteAnswer::Accept;
    }
    const QString text = tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    return ask(text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes && self && isVisible();
}

QMessageBox::StandardButton FileDialogWindow::ask(
    const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    // On the heap, since the owner of the window may go while the box is open and take both with it.
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::Warning, windowTitle(), text, buttons, this));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(defaultButton);
    const auto answer = static_cast<QMessageBox::StandardButton>(box->exec());
    delete box;
    return answer;
}

} // namespace morvane::ui
