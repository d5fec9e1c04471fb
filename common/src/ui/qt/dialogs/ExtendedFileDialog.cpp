// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QComboBox>

#include <utility>

namespace {

/** Calls a function with the dialog that exists. Returns a default value if no dialog exists any more. */
template <typename Call>
auto withDialog(ExtendedWinFileDialog* winDialog, QExtendedFileDialog* qtDialog, Call call)
{
    using Result = decltype(call(*winDialog));
    if (winDialog) {
        return call(*winDialog);
    }
    return qtDialog ? call(*qtDialog) : Result();
}

} // namespace

bool ExtendedFileDialog::m_useNativeFileDialog = true;

bool ExtendedFileDialog::useNativeFileDialog()
{
    return m_useNativeFileDialog;
}

void ExtendedFileDialog::setUseNativeFileDialog(bool on)
{
    m_useNativeFileDialog = on;
}

ExtendedFileDialog::ExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
    : ExtendedFileDialog(&parent, caption, directory, filter, helpTopic, acceptMode)
{
}

ExtendedFileDialog::ExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode)
{
    if (m_useNativeFileDialog) {
        m_winDialog.reset(new ExtendedWinFileDialog(parent, caption, directory, filter, helpTopic, acceptMode, false));
    } else {
        m_qtDialog.reset(new QExtendedFileDialog(parent, caption, directory, filter, helpTopic, acceptMode));
        // When the parent is destroyed, it deletes the dialog.
        QObject::connect(m_qtDialog.get(), &QObject::destroyed, [this] { static_cast<void>(m_qtDialog.release()); });
    }
}

ExtendedFileDialog::~ExtendedFileDialog()
{
    delete m_qtDialog.release();
}

int ExtendedFileDialog::exec()
{
    if (m_winDialog) {
        return m_winDialog->exec();
    }
    return m_qtDialog ? m_qtDialog->exec() : QDialog::Rejected;
}

void ExtendedFileDialog::selectFile(const QString& file)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.selectFile(file); });
}

QStringList ExtendedFileDialog::selectedFiles()
{
    return std::as_const(*this).selectedFiles();
}

QStringList ExtendedFileDialog::selectedFiles() const
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.selectedFiles(); });
}

void ExtendedFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setFileMode(mode); });
}

QDir ExtendedFileDialog::directory()
{
    return std::as_const(*this).directory();
}

QDir ExtendedFileDialog::directory() const
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.directory(); });
}

void ExtendedFileDialog::setDirectory(const QString& directory)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setDirectory(directory); });
}

void ExtendedFileDialog::selectNameFilter(const QString& filter)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.selectNameFilter(filter); });
}

QStringList ExtendedFileDialog::nameFilters()
{
    return std::as_const(*this).nameFilters();
}

QStringList ExtendedFileDialog::nameFilters() const
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.nameFilters(); });
}

void ExtendedFileDialog::setNameFilters(const QStringList& filters)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setNameFilters(filters); });
}

int ExtendedFileDialog::chosenFilter()
{
    if (m_qtDialog && !m_qtDialog->m_savedNameFilters.isEmpty()) {
        // A filter that a typed wildcard has changed may have the same text as another one.
        const QStringList& given = m_qtDialog->m_savedNameFilters;
        return given.indexOf(given.value(m_qtDialog->m_fileTypeCombo->currentIndex()));
    }
    return nameFilters().indexOf(selectedNameFilter());
}

QString ExtendedFileDialog::selectedNameFilter()
{
    return std::as_const(*this).selectedNameFilter();
}

QString ExtendedFileDialog::selectedNameFilter() const
{
    return withDialog(m_winDialog.get(), m_qtDialog.get(), [](auto& dialog) { return dialog.selectedNameFilter(); });
}

void ExtendedFileDialog::setDontConfirmOverwrite(bool on)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setDontConfirmOverwrite(on); });
}

void ExtendedFileDialog::setShowDirectoriesOnly(bool on)
{
    withDialog(m_winDialog.get(), m_qtDialog.get(), [&](auto& dialog) { dialog.setShowDirectoriesOnly(on); });
}

morvane::ui::FileDialogCustomization* ExtendedFileDialog::customization()
{
    if (m_winDialog) {
        return m_winDialog->customization();
    }
    return m_qtDialog ? m_qtDialog->customization() : nullptr;
}

QWidget* ExtendedFileDialog::addCustomButton(const std::string& text, boost::function<void()> action)
{
    auto* const custom = customization();
    return custom ? custom->addCustomButton(text, std::move(action)) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomCheckBox(
    const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
{
    auto* const custom = customization();
    return custom ? custom->addCustomCheckBox(text, std::move(checked)) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomComboBox(const std::string& label, const std::vector<std::string>& entries,
    boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
{
    auto* const custom = customization();
    return custom ? custom->addCustomComboBox(label, entries, std::move(chosen)) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomRadioButtons(const std::string& label, const std::vector<std::string>& entries,
    boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
{
    auto* const custom = customization();
    return custom ? custom->addCustomRadioButtons(label, entries, std::move(chosen)) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomLineEdit(
    const std::string& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text)
{
    auto* const custom = customization();
    return custom ? custom->addCustomLineEdit(label, std::move(text)) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomText(const std::string& text)
{
    auto* const custom = customization();
    return custom ? custom->addCustomText(text) : nullptr;
}

QWidget* ExtendedFileDialog::addCustomSeparator()
{
    auto* const custom = customization();
    return custom ? custom->addCustomSeparator() : nullptr;
}

QWidget* ExtendedFileDialog::beginCustomGroup(const std::string& label)
{
    auto* const custom = customization();
    return custom ? custom->beginCustomGroup(label) : nullptr;
}

void ExtendedFileDialog::endCustomGroup()
{
    if (auto* const custom = customization()) {
        custom->endCustomGroup();
    }
}

QWidget* ExtendedFileDialog::customEntry(const QWidget* control, int position)
{
    auto* const custom = customization();
    return custom ? custom->customEntry(control, position) : nullptr;
}

void ExtendedFileDialog::setAcceptanceCheck(morvane::ui::FileDialogCustomization::AcceptanceCheck check)
{
    if (auto* const custom = customization()) {
        custom->setAcceptanceCheck(std::move(check));
    }
}

void ExtendedFileDialog::setAcceptButtonText(const std::string& text)
{
    if (auto* const custom = customization()) {
        custom->setAcceptButtonText(text);
    }
}

void ExtendedFileDialog::setFileNameLabel(const std::string& label)
{
    if (auto* const custom = customization()) {
        custom->setFileNameLabel(label);
    }
}

void ExtendedFileDialog::addPlace(const std::string& folder, morvane::ui::FileDialogCustomization::Place where)
{
    if (auto* const custom = customization()) {
        custom->addPlace(folder, where);
    }
}

void ExtendedFileDialog::setMemoryKey(const std::string& key)
{
    if (auto* const custom = customization()) {
        custom->setMemoryKey(key);
    }
}

void ExtendedFileDialog::clearMemory()
{
    if (auto* const custom = customization()) {
        custom->clearMemory();
    }
}
