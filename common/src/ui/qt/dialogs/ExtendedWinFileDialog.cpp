// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include "ui/qt/dialogs/native/NativeFileDialog_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QFileInfo>

#include <utility>

namespace {

/** The text of the name field for @p file, which may be several quoted paths. */
QString nameFieldText(const QString& file)
{
    const QStringList listed = morvane::ui::quotedNames(file);
    if (listed.isEmpty()) {
        return QFileInfo(file).fileName();
    }
    QStringList names;
    for (const QString& path : listed) {
        const QString name = QFileInfo(path).fileName();
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    const QString blanksBehind = names.size() > 1 ? file.mid(file.lastIndexOf(QLatin1Char('"')) + 1) : QString();
    return names.isEmpty() ? QString() : morvane::ui::typedTextOfNames(names) + blanksBehind;
}

} // namespace

ExtendedWinFileDialog::ExtendedWinFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : ExtendedWinFileDialog(&parent, caption, directory, filter, helpTopic, acceptMode, useAcceptMenu)
{
}

ExtendedWinFileDialog::ExtendedWinFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : m_native(std::make_unique<morvane::ui::NativeFileDialog>(
          parent, caption, directory, filter, helpTopic, acceptMode, useAcceptMenu))
{
}

ExtendedWinFileDialog::~ExtendedWinFileDialog() = default;

QDialog::DialogCode ExtendedWinFileDialog::exec()
{
    return m_native->exec();
}

void ExtendedWinFileDialog::selectFile(const QString& file)
{
    m_native->fileName().setValue(nameFieldText(file).toStdString());
}

QStringList ExtendedWinFileDialog::selectedFiles()
{
    return std::as_const(*this).selectedFiles();
}

QStringList ExtendedWinFileDialog::selectedFiles() const
{
    return m_native->selectedFiles();
}

void ExtendedWinFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    m_native->setFileMode(mode);
}

QDir ExtendedWinFileDialog::directory()
{
    return std::as_const(*this).directory();
}

QDir ExtendedWinFileDialog::directory() const
{
    return QDir(QString::fromStdString(m_native->directory().value()));
}

void ExtendedWinFileDialog::setDirectory(const QString& dir)
{
    m_native->directory().setValue(dir.toStdString());
}

void ExtendedWinFileDialog::selectNameFilter(const QString& filter)
{
    m_native->currentFilterIndex()->setValue(m_native->nameFilters().indexOf(filter) + 1);
}

QStringList ExtendedWinFileDialog::nameFilters()
{
    return std::as_const(*this).nameFilters();
}

QStringList ExtendedWinFileDialog::nameFilters() const
{
    return m_native->nameFilters();
}

void ExtendedWinFileDialog::setNameFilters(const QStringList& filters)
{
    m_native->setNameFilters(filters);
}

QString ExtendedWinFileDialog::selectedNameFilter()
{
    return std::as_const(*this).selectedNameFilter();
}

QString ExtendedWinFileDialog::selectedNameFilter() const
{
    return m_native->currentNameFilter();
}

QWidget* ExtendedWinFileDialog::addCustomButton(const std::string& text, boost::function<void()> action)
{
    return m_native->controls().addButton(text, std::move(action), false);
}

QWidget* ExtendedWinFileDialog::addCustomCheckBox(
    const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
{
    return m_native->controls().addCheckBox(text, std::move(checked));
}

QWidget* ExtendedWinFileDialog::addAcceptButtonOption(const std::string& text, int value)
{
    return m_native->controls().addAcceptOption(text, value);
}

void ExtendedWinFileDialog::clearAcceptMenuOptions()
{
    m_native->controls().clearAcceptOptions();
}

int ExtendedWinFileDialog::selectedAcceptMenuOption() const
{
    return m_native->controls().selectedAcceptOption();
}

QWidget* ExtendedWinFileDialog::addCustomComboBox(const std::string& label, const std::vector<std::string>& entries,
    boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
{
    return customization()->addCustomComboBox(label, entries, std::move(chosen));
}

QWidget* ExtendedWinFileDialog::addCustomRadioButtons(const std::string& label, const std::vector<std::string>& entries,
    boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
{
    return customization()->addCustomRadioButtons(label, entries, std::move(chosen));
}

QWidget* ExtendedWinFileDialog::addCustomLineEdit(
    const std::string& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text)
{
    return customization()->addCustomLineEdit(label, std::move(text));
}

QWidget* ExtendedWinFileDialog::addCustomText(const std::string& text)
{
    return customization()->addCustomText(text);
}

QWidget* ExtendedWinFileDialog::addCustomSeparator()
{
    return customization()->addCustomSeparator();
}

QWidget* ExtendedWinFileDialog::beginCustomGroup(const std::string& label)
{
    return customization()->beginCustomGroup(label);
}

void ExtendedWinFileDialog::endCustomGroup()
{
    customization()->endCustomGroup();
}

QWidget* ExtendedWinFileDialog::customEntry(const QWidget* control, int position)
{
    return customization()->customEntry(control, position);
}

void ExtendedWinFileDialog::setAcceptanceCheck(morvane::ui::FileDialogCustomization::AcceptanceCheck check)
{
    customization()->setAcceptanceCheck(std::move(check));
}

void ExtendedWinFileDialog::setAcceptButtonText(const std::string& text)
{
    customization()->setAcceptButtonText(text);
}

void ExtendedWinFileDialog::setFileNameLabel(const std::string& label)
{
    customization()->setFileNameLabel(label);
}

void ExtendedWinFileDialog::addPlace(const std::string& folder, morvane::ui::FileDialogCustomization::Place where)
{
    customization()->addPlace(folder, where);
}

void ExtendedWinFileDialog::setMemoryKey(const std::string& key)
{
    customization()->setMemoryKey(key);
}

void ExtendedWinFileDialog::clearMemory()
{
    customization()->clearMemory();
}

morvane::ui::FileDialogCustomization* ExtendedWinFileDialog::customization()
{
    return m_native->customization();
}

boost::shared_ptr<morvane::PropertyAbstract<int>> ExtendedWinFileDialog::currentFilterIndex()
{
    return m_native->currentFilterIndex();
}

void ExtendedWinFileDialog::setDontConfirmOverwrite(bool on)
{
    m_native->setDontConfirmOverwrite(on);
}

void ExtendedWinFileDialog::setShowDirectoriesOnly(bool) {}

QWidget* ExtendedWinFileDialog::parent()
{
    return std::as_const(*this).parent();
}

QWidget* ExtendedWinFileDialog::parent() const
{
    return m_native->parent();
}

void ExtendedWinFileDialog::close()
{
    m_native->close();
}
