// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/FileDialogCustomization.h"

#include "ui/qt/dialogs/native/CustomizationTarget_p.h"
#include "ui/qt/dialogs/native/NativeControls_p.h"

#include <utility>

namespace morvane::ui {

struct FileDialogCustomization::Impl
{
    CustomizationTarget& target;
};

FileDialogCustomization::FileDialogCustomization(CustomizationTarget& target)
    : m_impl(std::make_unique<Impl>(Impl{target}))
{
}

FileDialogCustomization::~FileDialogCustomization() = default;

QWidget* FileDialogCustomization::addCustomButton(const std::string& text, boost::function<void()> action)
{
    return m_impl->target.controls().addButton(text, std::move(action), false);
}

QWidget* FileDialogCustomization::addCustomCheckBox(
    const std::string& text, boost::shared_ptr<PropertyAbstract<bool>> checked)
{
    return m_impl->target.controls().addCheckBox(text, std::move(checked));
}

QWidget* FileDialogCustomization::addCustomComboBox(
    const std::string& label, const std::vector<std::string>& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
{
    return m_impl->target.controls().addComboBox(label, entries, std::move(chosen));
}

QWidget* FileDialogCustomization::addCustomRadioButtons(
    const std::string& label, const std::vector<std::string>& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
{
    return m_impl->target.controls().addRadioButtons(label, entries, std::move(chosen));
}

QWidget* FileDialogCustomization::addCustomLineEdit(
    const std::string& label, boost::shared_ptr<PropertyAbstract<std::string>> text)
{
    return m_impl->target.controls().addLineEdit(label, std::move(text));
}

QWidget* FileDialogCustomization::addCustomText(const std::string& text)
{
    return m_impl->target.controls().addText(text);
}

QWidget* FileDialogCustomization::addCustomSeparator()
{
    return m_impl->target.controls().addSeparator();
}

QWidget* FileDialogCustomization::beginCustomGroup(const std::string& label)
{
    return m_impl->target.controls().beginGroup(label);
}

void FileDialogCustomization::endCustomGroup()
{
    m_impl->target.controls().endGroup();
}

QWidget* FileDialogCustomization::customEntry(const QWidget* control, int position)
{
    return m_impl->target.controls().entry(control, position);
}

void FileDialogCustomization::setAcceptanceCheck(AcceptanceCheck check)
{
    m_impl->target.setAcceptanceCheck(std::move(check));
}

void FileDialogCustomization::setAcceptButtonText(const std::string& text)
{
    m_impl->target.setAcceptButtonText(text);
}

void FileDialogCustomization::setFileNameLabel(const std::string& label)
{
    m_impl->target.setFileNameLabel(label);
}

void FileDialogCustomization::addPlace(const std::string& folder, Place where)
{
    m_impl->target.addPlace(folder, where == Place::Top);
}

void FileDialogCustomization::setMemoryKey(const std::string& key)
{
    m_impl->target.setMemoryKey(key);
}

void FileDialogCustomization::clearMemory()
{
    m_impl->target.clearMemory();
}

} // namespace morvane::ui
