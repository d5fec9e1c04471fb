// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/FileDialogWindow_p.h"

#include "ui/qt/dialogs/qtdialog/FileDialogAccessibility_p.h"
#include "ui/qt/dialogs/qtdialog/FileDialogLayout_p.h"
#include "ui/qt/dialogs/qtdialog/QtFileDialogNames_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"
#include "ui/qt/dialogs/shell/TypedPatterns_p.h"

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

/** The type as a name filter for the desktop's dialog. Qt parses it. */
QString nativeFilter(const FileTypeEntry& type)
{
    const QString patterns = type.patterns.isEmpty() ? QStringLiteral("*") : type.patterns.join(QLatin1Char(' '));
    return QStringLiteral("%1 (%2)").arg(type.description, patterns).simplified();
}

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir();
}

} // namespace

FileDialogWindow::FileDialogWindow(QWidget* owner, const FileDialogSettings& settings, FileDialogObserver& observer)
    : QFileDialog(owner),
      m_settings(settings),
      m_observer(observer),
      m_folder(settings.folder),
      m_toldType(settings.typeIndex)
{
    setOption(QFileDialog::DontUseNativeDialog, settings.usesWidgets);
    applySettings();
    m_nameEdit = findChild<QLineEdit*>(qtFileDialogNames::fileNameEdit);
    m_typeCombo = findChild<QComboBox*>(qtFileDialogNames::fileTypeCombo);
    m_model = findChild<QFileSystemModel*>();
    if (consistsOfWidgets()) {
        m_acceptText = labelText(QFileDialog::Accept);
        setUpWidgets();
        setUpTypeCombo();
        m_settings.places.addTo(*this);
        watchWidgets();
    } else {
        setUpNative();
    }
    setTypedName(settings.fileName);
    if (settings.fileNameIsTyped) {
        m_editedName = settings.fileName;
    }
}

FileDialogWindow::~FileDialogWindow()
{
    m_settings.places.removeFrom(*this);
}

void FileDialogWindow::applySettings()
{
    setAcceptMode(m_settings.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // accept() checks whether files must exist. Qt would disable the button without telling the user why.
    const bool several = m_settings.allowsSeveral && !m_settings.saving && !m_settings.usesWidgets;
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
        m_acceptText = acceptLabel;
    }
    if (!fileNameLabel.isEmpty()) {
        setLabelText(QFileDialog::FileName, fileNameLabel);
    }
    keepAcceptText();
}

void FileDialogWindow::setOptionText(const QString& text)
{
    m_optionText = text;
    keepAcceptText();
}

void FileDialogWindow::setUpWidgets()
{
    if (m_settings.allowsSeveral && !m_settings.saving) {
        for (const QLatin1String name : {qtFileDialogNames::listView, qtFileDialogNames::treeView}) {
            if (auto* const view = findChild<QAbstractItemView*>(name)) {
                view->setSelectionMode(QAbstractItemView::ExtendedSelection);
            }
        }
    }
    if (m_settings.types.empty() || m_settings.picksFolders) {
        m_typeCombo->hide();
        if (auto* const label = findChild<QLabel*>(qtFileDialogNames::fileTypeLabel)) {
            label->hide();
        }
    }
}

void FileDialogWindow::setUpTypeCombo()
{
    if (m_settings.types.empty()) {
        return;
    }
    // Qt gets one placeholder for each type, because it simplifies descriptions, and in save mode it would replace the
    // typed suffix by that of the first pattern. The real texts and patterns are set here.
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

void FileDialogWindow::setUpNative()
{
    if (m_settings.fileMustExist && !m_settings.saving && fileMode() == QFileDialog::AnyFile) {
        setFileMode(QFileDialog::ExistingFile);
    }
    setUpNativeTypes();
    connect(this, &QFileDialog::directoryEntered, this, [this] {
        m_folderPending = true;
        deliverLater();
    });
    connect(this, &QFileDialog::currentChanged, this, [this] {
        m_selectionPending = true;
        deliverLater();
    });
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
}

void FileDialogWindow::watchWidgets()
{
    connect(m_typeCombo, QOverload<int>::of(&QComboBox::activated), this, &FileDialogWindow::onTypePicked);
    connect(m_nameEdit, &QLineEdit::textChanged, this, &FileDialogWindow::updateAcceptButton);
    connect(m_nameEdit, &QLineEdit::textEdited, this, [this](const QString& name) { m_editedName = name; });
    connect(m_model, &QFileSystemModel::rootPathChanged, this, [this] {
        m_folderPending = true;
        deliverLater();
    });
    if (auto* const view = findChild<QAbstractItemView*>(qtFileDialogNames::listView)) {
        connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            updateAcceptButton(); // Qt disables the button for some texts, and the text may be unchanged
            m_selectionPending = true;
            deliverLater();
        });
    }
}

void FileDialogWindow::run()
{
    makeListsReachable(*this);
    if (consistsOfWidgets()) {
        showListsWhole(*this);
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
        // A wildcard stays a wildcard when its extension is replaced, for instance after a change of the type.
        m_editedName = holdsWildcard() ? name : m_editedName;
        m_nameEdit->setText(name);
        return;
    }
    const QStringList listed = quotedNames(name);
    for (const QString& file : listed.isEmpty() ? QStringList(name) : listed) {
        if (!file.isEmpty()) {
            selectFile(file);
        }
    }
}

bool FileDialogWindow::holdsWildcard() const
{
    return m_nameEdit && !m_settings.picksFolders && m_nameEdit->text() == m_editedName &&
           m_editedName.contains(QLatin1Char('*'));
}

void FileDialogWindow::setTypeIndex(int index)
{
    forgetWildcard();
    m_settings.typeIndex = index;
    m_toldType = index;
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
    if (const auto* const view = findChild<QAbstractItemView*>(qtFileDialogNames::listView)) {
        for (const QModelIndex& index : view->selectionModel()->selectedRows()) {
            paths.append(m_model->filePath(index));
        }
    }
    if (paths.isEmpty() && !m_nameEdit->text().isEmpty() && !holdsWildcard()) {
        paths = chosenPaths();
    }
    return paths;
}

void FileDialogWindow::applyPatterns()
{
    if (!m_typedPatterns.isEmpty() || m_settings.types.empty()) {
        m_model->setNameFilters(m_typedPatterns);
    } else {
        m_model->setNameFilters(m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex)).patterns);
    }
}

QAbstractButton* FileDialogWindow::acceptButton() const
{
    const auto* const box = findChild<QDialogButtonBox*>();
    const QList<QAbstractButton*> buttons = box->buttons();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
        [box](QAbstractButton* button) { return box->buttonRole(button) == QDialogButtonBox::AcceptRole; });
    return *found;
}

void FileDialogWindow::updateAcceptButton()
{
    acceptButton()->setEnabled(m_settings.picksFolders || !m_nameEdit->text().isEmpty());
    keepAcceptText();
}

void FileDialogWindow::keepAcceptText()
{
    // Qt shows "Open" on the button while a folder is selected. But in this dialog the button acts on the name.
    const QString& text = m_optionText.isEmpty() ? m_acceptText : m_optionText;
    if (consistsOfWidgets() && !text.isEmpty() && acceptButton()->text() != text) {
        acceptButton()->setText(text);
    }
}

void FileDialogWindow::onTypePicked(int index)
{
    if (index != m_settings.typeIndex) {
        forgetWildcard();
    }
    m_settings.typeIndex = index;
    applyPatterns(); // Qt has set its placeholder, even if the same type was picked again
    deliverLater();
}

void FileDialogWindow::onNativeTypePicked(const QString& filter)
{
    const auto found = std::find_if(m_settings.types.begin(), m_settings.types.end(),
        [&filter](const FileTypeEntry& type) { return nativeFilter(type) == filter; });
    const auto index = static_cast<int>(found - m_settings.types.begin());
    if (found != m_settings.types.end()) {
        m_settings.typeIndex = index;
        deliverLater();
    }
}

void FileDialogWindow::deliverLater()
{
    // Qt emits these signals during its own changes. The window must not be changed or destroyed then.
    QMetaObject::invokeMethod(
        this, [this] { deliver(); }, Qt::QueuedConnection);
}

void FileDialogWindow::deliver()
{
    const QPointer<FileDialogWindow> self(this);
    keepAcceptText();
    if (m_folderPending) {
        deliverFolder();
    }
    if (self && m_settings.typeIndex != m_toldType) {
        m_toldType = m_settings.typeIndex;
        m_observer.onTypeChanged(m_toldType);
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
    deliver(); // reports earlier changes before the choice
    if (!self || !isVisible()) {
        return;
    }
    if (holdsWildcard()) {
        filterByWildcard();
        return;
    }
    const QStringList paths = consistsOfWidgets() ? chosenPaths() : selectedFiles();
    if (paths.isEmpty() || (consistsOfWidgets() && (enterFolderAmong(paths) || !checks().exist(paths)))) {
        return;
    }
    if (!self || (consistsOfWidgets() && m_settings.saving && !checks().mayReplaceAll(paths)) || !self) {
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

void FileDialogWindow::filterByWildcard()
{
    if (!enterFolderOfWildcard()) {
        return;
    }
    forgetWildcard();
    m_typedPatterns = patternsOfTypedText(m_nameEdit->text());
    applyPatterns();
    if (!m_settings.types.empty()) {
        const auto& type = m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex));
        const QString shown = m_typedPatterns.join(QLatin1Char(' '));
        m_typeCombo->setItemText(m_settings.typeIndex, QStringLiteral("%1 (%2)").arg(type.description, shown));
    }
}

bool FileDialogWindow::enterFolderOfWildcard()
{
    const QString text = QDir::fromNativeSeparators(m_nameEdit->text()).remove(QLatin1Char('"'));
    const int end = text.lastIndexOf(QLatin1Char('/')) + 1;
    if (end == 0) {
        return true;
    }
    const QString folder = pathsOfTypedText(text.left(end), directory().absolutePath(), false).value(0);
    if (!isFolder(folder)) {
        checks().tellMissingFolder(folder);
        return false;
    }
    setDirectory(folder);
    setTypedName(text.mid(end));
    return holdsWildcard();
}

void FileDialogWindow::forgetWildcard()
{
    if (!m_typedPatterns.isEmpty() && !m_settings.types.empty()) {
        const auto& type = m_settings.types.at(static_cast<std::size_t>(m_settings.typeIndex));
        m_typeCombo->setItemText(m_settings.typeIndex, type.description);
    }
    m_typedPatterns.clear();
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

} // namespace morvane::ui
