// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NativeControls_p.h"

#include "ui/qt/dialogs/native/NativeText_p.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace morvane::ui {

namespace {

// Windows has 16 bits for identifiers of windows. An edit box takes as many characters, unless it is told otherwise.
constexpr std::size_t mostIdentifiers = std::numeric_limits<std::int16_t>::max();
constexpr int longestText = std::numeric_limits<std::int16_t>::max();

/** The text as the Shell shows it, which ends at the first null character. */
std::string shownForm(const std::string& text)
{
    return toQString(shellText(text).c_str()).toStdString();
}

} // namespace

/** The label of the next control: a group of its own, or in a group of the host a text. */
struct NativeControls::Label
{
    Label(NativeControls& controls, IFileDialogCustomize* customize, const std::string& text) : m_customize(customize)
    {
        if (text.empty()) {
            return;
        }
        id = controls.m_nextId++;
        const ShellString label = shellText(text);
        if (customize && controls.m_isInGroup) {
            customize->AddText(*id, label.c_str());
        } else if (customize) {
            m_isGroup = SUCCEEDED(customize->StartVisualGroup(*id, label.c_str()));
        }
    }
    ~Label()
    {
        if (m_isGroup) {
            m_customize->EndVisualGroup();
        }
    }
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    std::optional<unsigned int> id;

private:
    IFileDialogCustomize* m_customize;
    bool m_isGroup = false;
};

NativeControls::NativeControls(std::function<void(LPWSTR)> freeText, ControlsSource source)
    : m_freeText(std::move(freeText)), m_source(std::move(source))
{
}

NativeControls::~NativeControls() = default;

void NativeControls::addAcceptMenu()
{
    const auto customize = m_source();
    m_acceptMenuId = m_nextId++;
    if (customize) {
        customize->EnableOpenDropDown(m_acceptMenuId);
    }
}

QWidget* NativeControls::addButton(const std::string& text, boost::function<void()> action, bool prominent)
{
    const unsigned int id = add(ControlKind::PushButton, text, prominent, false);
    m_buttonActions[id] = std::move(action);
    return addStandIn(ControlKind::PushButton, id);
}

QWidget* NativeControls::addCheckBox(const std::string& text, boost::shared_ptr<PropertyAbstract<bool>> checked)
{
    const bool initial = checked && checked->value();
    const unsigned int id = add(ControlKind::CheckBox, text, false, initial);
    m_checkBoxes[id] = std::make_unique<ControlBinding<bool>>(
        std::move(checked), initial, [this, id](const bool& on) { return showChecked(id, on); });
    return addStandIn(ControlKind::CheckBox, id);
}

QWidget* NativeControls::addAcceptOption(const std::string& text, int value)
{
    const unsigned int id = add(ControlKind::AcceptMenuItem, text, false, false);
    m_acceptOptionValues[id] = value;
    m_optionStandIns.push_back(
        std::make_unique<ControlStandIn>(m_source, ControlKind::AcceptMenuItem, m_acceptMenuId, id));
    return m_optionStandIns.back().get();
}

void NativeControls::clearAcceptOptions()
{
    const auto customize = m_source();
    for (const auto& standIn : m_optionStandIns) {
        if (customize) {
            customize->RemoveControlItem(m_acceptMenuId, standIn->itemId());
        }
    }
    m_optionStandIns.clear();
}

unsigned int NativeControls::add(ControlKind kind, const std::string& text, bool prominent, bool checked)
{
    const auto customize = m_source();
    const unsigned int id = m_nextId++;
    if (customize && SUCCEEDED(request(*customize, kind, id, text, checked)) && prominent) {
        customize->MakeProminent(id);
    }
    return id;
}

HRESULT NativeControls::request(
    IFileDialogCustomize& customize, ControlKind kind, DWORD id, const std::string& text, bool checked)
{
    const ShellString label = shellText(text);
    switch (kind) {
    case ControlKind::PushButton:
        return customize.AddPushButton(id, label.c_str());
    case ControlKind::CheckBox:
        return customize.AddCheckButton(id, label.c_str(), checked ? TRUE : FALSE);
    default:
        return customize.AddControlItem(m_acceptMenuId, id, label.c_str());
    }
}

QWidget* NativeControls::addComboBox(
    const std::string& label, const std::vector<std::string>& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
{
    return addList(&IFileDialogCustomize::AddComboBox, label, entries, std::move(chosen));
}

QWidget* NativeControls::addRadioButtons(
    const std::string& label, const std::vector<std::string>& entries, boost::shared_ptr<PropertyAbstract<int>> chosen)
{
    return addList(&IFileDialogCustomize::AddRadioButtonList, label, entries, std::move(chosen));
}

QWidget* NativeControls::addList(AddList call, const std::string& label, const std::vector<std::string>& entries,
    boost::shared_ptr<PropertyAbstract<int>> chosen)
{
    std::vector<std::string> texts = entries;
    texts.push_back(label);
    expectRoom(entries.size() + (label.empty() ? 1 : 2), texts);
    const auto customize = m_source();
    const Label labelOfList(*this, customize.get(), label);
    const unsigned int id = m_nextId++;
    const unsigned int firstEntry = m_nextId;
    m_nextId += static_cast<unsigned int>(entries.size());
    const bool isThere = customize && SUCCEEDED(((*customize).*call)(id));
    for (std::size_t i = 0; isThere && i < entries.size(); ++i) {
        customize->AddControlItem(id, firstEntry + static_cast<unsigned int>(i), shellText(entries[i]).c_str());
    }
    List& list = m_lists[id];
    list.firstEntry = firstEntry;
    list.count = static_cast<int>(entries.size());
    const int initial = chosen ? select(id, chosen->value()) : -1;
    list.binding = std::make_unique<ControlBinding<int>>(
        std::move(chosen), initial, [this, id](const int& position) { return select(id, position); });
    return addStandIn(ControlKind::Other, id, labelOfList.id);
}

QWidget* NativeControls::addLineEdit(const std::string& label, boost::shared_ptr<PropertyAbstract<std::string>> text)
{
    const std::string initial = text ? text->value() : std::string();
    expectRoom(label.empty() ? 1 : 2, {label, initial});
    const auto customize = m_source();
    const Label labelOfEdit(*this, customize.get(), label);
    const unsigned int id = m_nextId++;
    if (customize) {
        customize->AddEditBox(id, shellText(initial).c_str());
    }
    m_texts[id] = std::make_unique<ControlBinding<std::string>>(
        std::move(text), shownForm(initial), [this, id](const std::string& value) { return showText(id, value); });
    return addStandIn(ControlKind::Other, id, labelOfEdit.id);
}

QWidget* NativeControls::addText(const std::string& text)
{
    expectRoom(1, {text});
    const unsigned int id = m_nextId++;
    if (const auto customize = m_source()) {
        customize->AddText(id, shellText(text).c_str());
    }
    return addStandIn(ControlKind::Other, id);
}

QWidget* NativeControls::addSeparator()
{
    expectRoom(1, {});
    const unsigned int id = m_nextId++;
    if (const auto customize = m_source()) {
        customize->AddSeparator(id);
    }
    return addStandIn(ControlKind::Other, id);
}

QWidget* NativeControls::beginGroup(const std::string& label)
{
    expectRoom(1, {label});
    if (m_isInGroup) {
        throw std::logic_error("A group of controls cannot contain another group");
    }
    const unsigned int id = m_nextId++;
    if (const auto customize = m_source()) {
        customize->StartVisualGroup(id, shellText(label).c_str());
    }
    m_isInGroup = true;
    return addStandIn(ControlKind::Other, id);
}

void NativeControls::endGroup()
{
    expectRoom(0, {});
    if (!m_isInGroup) {
        throw std::logic_error("There is no group of controls to end");
    }
    m_isInGroup = false;
    if (const auto customize = m_source()) {
        customize->EndVisualGroup();
    }
}

QWidget* NativeControls::entry(const QWidget* control, int position)
{
    const auto standIn = std::find_if(
        m_standIns.begin(), m_standIns.end(), [control](const auto& candidate) { return candidate.get() == control; });
    const auto found = standIn == m_standIns.end() ? m_lists.end() : m_lists.find((*standIn)->controlId());
    if (found == m_lists.end() || position < 0 || position >= found->second.count) {
        return nullptr;
    }
    auto& entry = found->second.entries[position];
    if (!entry) {
        entry = std::make_unique<ControlStandIn>(m_source, ControlKind::ListEntry, found->first,
            found->second.firstEntry + static_cast<unsigned int>(position));
    }
    return entry.get();
}

void NativeControls::expectRoom(std::size_t identifiers, const std::vector<std::string>& texts) const
{
    if (m_isOpen) {
        throw std::logic_error("A control cannot be added while the file dialog is open");
    }
    if (m_nextId + identifiers > mostIdentifiers) {
        throw std::length_error("A file dialog has at most 32767 controls, labels and entries");
    }
    for (const std::string& text : texts) {
        if (text.size() > longestText && QString::fromStdString(text).size() > longestText) {
            throw std::length_error("A text in a file dialog has at most 32767 characters");
        }
    }
}

QWidget* NativeControls::addStandIn(ControlKind kind, unsigned int id, std::optional<unsigned int> label)
{
    m_standIns.push_back(std::make_unique<ControlStandIn>(m_source, kind, id, 0));
    m_standIns.back()->setLabel(label);
    return m_standIns.back().get();
}

int NativeControls::select(unsigned int list, int position)
{
    const List& shown = m_lists.at(list);
    if (position < 0 || position >= shown.count) {
        return position; // the list keeps its selection
    }
    if (const auto customize = m_source()) {
        customize->SetSelectedControlItem(list, shown.firstEntry + static_cast<unsigned int>(position));
    }
    return position;
}

bool NativeControls::showChecked(unsigned int control, bool checked)
{
    if (const auto customize = m_source()) {
        customize->SetCheckButtonState(control, checked ? TRUE : FALSE);
    }
    return checked;
}

std::string NativeControls::showText(unsigned int control, const std::string& text)
{
    if (const auto customize = m_source()) {
        customize->SetEditBoxText(control, shellText(text).c_str());
    }
    return shownForm(text);
}

std::optional<std::string> NativeControls::textOf(IFileDialogCustomize& customize, unsigned int control)
{
    LPWSTR text = nullptr;
    const HRESULT result = customize.GetEditBoxText(control, &text);
    const QString read = toQString(text);
    m_freeText(text);
    return SUCCEEDED(result) ? std::optional<std::string>(read.toStdString()) : std::nullopt;
}

void NativeControls::readSelectedAcceptOption()
{
    const auto customize = m_source();
    DWORD item = 0;
    if (!customize || FAILED(customize->GetSelectedControlItem(m_acceptMenuId, &item))) {
        return;
    }
    const auto found = m_acceptOptionValues.find(item);
    if (found != m_acceptOptionValues.end()) {
        m_selectedAcceptOption = found->second;
    }
}

void NativeControls::buttonClicked(DWORD control)
{
    const auto found = m_buttonActions.find(control);
    if (found != m_buttonActions.end()) {
        const boost::function<void()> action = found->second; // it may add buttons
        action();
    }
}

void NativeControls::checkButtonToggled(DWORD control, BOOL checked)
{
    const auto found = m_checkBoxes.find(control);
    if (found != m_checkBoxes.end()) {
        found->second->userSet(checked == TRUE);
    }
}

void NativeControls::itemSelected(DWORD control, DWORD item)
{
    const auto found = m_lists.find(control);
    if (found == m_lists.end() || item < found->second.firstEntry) {
        return;
    }
    const auto position = static_cast<int>(item - found->second.firstEntry);
    if (position < found->second.count) {
        try {
            found->second.binding->userSet(position);
        } catch (const InvalidPropertyValueException&) {
            // The list shows the value of the property again.
        }
    }
}

void NativeControls::readTexts()
{
    const auto customize = m_texts.empty() ? ComPtr<IFileDialogCustomize>() : m_source();
    for (const auto& [control, binding] : m_texts) {
        const auto text = customize ? textOf(*customize, control) : std::nullopt;
        if (text) {
            binding->userTypes(*text);
        }
    }
}

std::optional<std::string> NativeControls::finishTexts()
{
    const auto customize = m_texts.empty() ? ComPtr<IFileDialogCustomize>() : m_source();
    std::optional<std::string> reason;
    for (const auto& [control, binding] : m_texts) {
        const auto text = customize ? textOf(*customize, control) : std::nullopt;
        try {
            binding->userFinishes(text.value_or(binding->shown()));
        } catch (const InvalidPropertyValueException& rejection) {
            reason = reason ? reason : std::string(rejection.what());
        }
    }
    return reason;
}

} // namespace morvane::ui
