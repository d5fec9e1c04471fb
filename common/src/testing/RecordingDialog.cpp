// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/RecordingDialog.h"

#include "testing/RecordingControls.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/shell/ComPart_p.h"
#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>

namespace morvane::test {

namespace {

std::optional<DWORD> usableControl(const RecordingControls& controls, std::optional<DWORD> control)
{
    return control && controls.state(*control) == CDCS_ENABLEDVISIBLE ? control : std::nullopt;
}

} // namespace

RecordingDialog::RecordingDialog(RecordingShell& shell, bool saving)
    : m_shell(shell),
      m_saving(saving),
      m_options(saving ? shell.script.saveOptions : shell.script.openOptions),
      m_sinks(std::make_unique<ui::EventSinks>()),
      m_controls(std::make_unique<ui::ComPart<RecordingControls>>(*this, shell))
{
    shell.objectMade();
}

RecordingDialog::~RecordingDialog()
{
    m_shell.dialogGone(this);
    m_shell.objectGone();
}

HRESULT RecordingDialog::give(REFIID iid, void** object)
{
    if (iid == IID_IFileDialogCustomize) {
        static const QITAB part[] = {ui::interfaceRow<IFileDialogCustomize, RecordingControls>(), QITAB{}};
        return ui::searchInterfaces(m_controls.get(), part, iid, object);
    }
    static const QITAB opening[] = {ui::interfaceRow<IFileOpenDialog, RecordingDialog>(),
        ui::interfaceRow<IFileDialog, RecordingDialog>(), ui::interfaceRow<IModalWindow, RecordingDialog>(), QITAB{}};
    return ui::searchInterfaces(this, m_saving ? opening + 1 : opening, iid, object);
}

HRESULT RecordingDialog::run(HWND owner)
{
    m_owner = owner;
    m_running = true;
    m_outcome.reset();
    m_results.clear();
    m_controls->forgetPick();
    const auto stop = qScopeGuard([this] {
        m_running = false;
        m_results = m_outcome == S_OK ? m_results : QStringList();
    });
    play();
    if (m_outcome == S_OK && !m_client.empty()) {
        m_shell.clientFolders[m_client] = folder();
    }
    return *m_outcome;
}

void RecordingDialog::play()
{
    if (m_shell.script.announcesOpening) {
        announceOpening();
    }
    if (!m_outcome && m_shell.script.duringShow) {
        m_shell.script.duringShow(*this);
    }
    if (!m_outcome) {
        endByItself();
    }
}

void RecordingDialog::endByItself()
{
    if (const auto scripted = m_shell.script.showResult) {
        m_results = *scripted == S_OK ? chosenPaths() : QStringList();
        finish(*scripted);
        return;
    }
    if (!m_shell.script.results.isEmpty()) {
        userAccepts();
    }
    finish(HRESULT_FROM_WIN32(ERROR_CANCELLED)); // unless it was accepted
}

void RecordingDialog::announceOpening()
{
    const auto item = makeRecordingItem(m_shell, folder());
    fire([&](IFileDialogEvents& sink) { return sink.OnFolderChanging(this, item.get()); });
    if (!m_outcome) {
        fire([&](IFileDialogEvents& sink) { return sink.OnFolderChange(this); });
    }
    if (!m_outcome && !m_types.empty()) {
        fire([&](IFileDialogEvents& sink) { return sink.OnTypeChange(this); });
    }
}

void RecordingDialog::finish(HRESULT outcome)
{
    if (!m_outcome) {
        m_outcome = outcome;
    }
}

HRESULT RecordingDialog::fire(const std::function<HRESULT(IFileDialogEvents&)>& call)
{
    return m_sinks->notify(call);
}

HRESULT RecordingDialog::fireControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call)
{
    return m_sinks->notifyControls(call);
}

void RecordingDialog::userAccepts()
{
    const QStringList paths = chosenPaths();
    if (m_outcome || paths.isEmpty()) {
        return;
    }
    const bool mustExist = (m_options & FOS_FILEMUSTEXIST) != 0 && m_shell.script.results.isEmpty();
    const auto exists = [](const QString& path) { return QFileInfo::exists(path); };
    if (mustExist && !std::all_of(paths.begin(), paths.end(), exists)) {
        return;
    }
    if (m_saving && (m_options & FOS_OVERWRITEPROMPT) && QFileInfo::exists(paths.first()) &&
        (!mayReplace(paths.first()) || m_outcome)) {
        return;
    }
    if (m_saving && paths.size() > 1) {
        m_fileName = ui::typedTextOfNames(paths); // a save dialog has no list of results
    }
    m_results = paths;
    const HRESULT answer = fire([this](IFileDialogEvents& sink) { return sink.OnFileOk(this); });
    if (answer != S_OK || m_outcome) {
        m_results.clear();
        return;
    }
    finish(S_OK);
}

bool RecordingDialog::mayReplace(const QString& path)
{
    const auto item = makeRecordingItem(m_shell, path);
    FDE_OVERWRITE_RESPONSE response = FDEOR_DEFAULT;
    fire([&](IFileDialogEvents& sink) {
        const HRESULT result = sink.OnOverwrite(this, item.get(), &response);
        response = result == S_OK ? response : FDEOR_DEFAULT;
        return result == S_OK && response != FDEOR_DEFAULT ? S_FALSE : S_OK;
    });
    return response == FDEOR_ACCEPT || (response == FDEOR_DEFAULT && m_replaces);
}

void RecordingDialog::userCancels()
{
    finish(HRESULT_FROM_WIN32(ERROR_CANCELLED));
}

void RecordingDialog::userPicksType(UINT index)
{
    if (index != m_typeIndex) {
        m_typeIndex = index;
        fire([this](IFileDialogEvents& sink) { return sink.OnTypeChange(this); });
    }
}

void RecordingDialog::userEntersFolder(const QString& folder)
{
    const auto item = makeRecordingItem(m_shell, folder);
    if (fire([&](IFileDialogEvents& sink) { return sink.OnFolderChanging(this, item.get()); }) == S_OK) {
        m_folder = folder;
        fire([this](IFileDialogEvents& sink) { return sink.OnFolderChange(this); });
    }
}

void RecordingDialog::userSelects(const QString& path)
{
    m_selected = path;
    fire([this](IFileDialogEvents& sink) { return sink.OnSelectionChange(this); });
}

bool RecordingDialog::userClicks(const QString& label)
{
    const auto control = usableControl(*m_controls, m_controls->idOf(label));
    if (!control || m_controls->isCheckBox(*control)) {
        return false;
    }
    userClicks(*control);
    return true;
}

bool RecordingDialog::userToggles(const QString& label)
{
    const auto control = usableControl(*m_controls, m_controls->idOf(label));
    if (!control || !m_controls->isCheckBox(*control)) {
        return false;
    }
    userToggles(*control);
    return true;
}

bool RecordingDialog::userPicksItem(const QString& label)
{
    const auto found = m_controls->itemOf(label);
    if (!found || m_controls->itemState(found->first, found->second) != CDCS_ENABLEDVISIBLE) {
        return false;
    }
    userPicksItem(found->first, found->second);
    return true;
}

bool RecordingDialog::userChooses(const QString& label, int position)
{
    const auto list = usableControl(*m_controls, m_controls->listOf(label));
    const auto items = list ? m_controls->itemsOf(*list) : std::vector<std::pair<DWORD, QString>>();
    if (position < 0 || position >= static_cast<int>(items.size())) {
        return false;
    }
    const DWORD item = items[static_cast<std::size_t>(position)].first;
    if (m_controls->itemState(*list, item) != CDCS_ENABLEDVISIBLE) {
        return false;
    }
    userChooses(*list, item);
    return true;
}

bool RecordingDialog::userTypes(const QString& label, const QString& text)
{
    const auto edit = usableControl(*m_controls, m_controls->editBoxOf(label));
    if (edit) {
        userTypes(*edit, text);
    }
    return edit.has_value();
}

void RecordingDialog::userChooses(DWORD control, DWORD item)
{
    if (m_controls->selectedIn(control) == item) {
        return;
    }
    m_controls->pick(control, item);
    fireControls([&](IFileDialogControlEvents& sink) { return sink.OnItemSelected(m_controls.get(), control, item); });
}

void RecordingDialog::userTypes(DWORD control, const QString& text)
{
    m_controls->type(control, text);
}

void RecordingDialog::userClicks(DWORD control)
{
    fireControls([&](IFileDialogControlEvents& sink) { return sink.OnButtonClicked(m_controls.get(), control); });
}

void RecordingDialog::userToggles(DWORD control)
{
    const BOOL checked = m_controls->toggle(control) ? TRUE : FALSE;
    fireControls(
        [&](IFileDialogControlEvents& sink) { return sink.OnCheckButtonToggled(m_controls.get(), control, checked); });
}

void RecordingDialog::userPicksItem(DWORD control, DWORD item)
{
    m_controls->pick(control, item);
    fireControls([&](IFileDialogControlEvents& sink) { return sink.OnItemSelected(m_controls.get(), control, item); });
    userAccepts();
}

QStringList RecordingDialog::chosenPaths() const
{
    if (!m_shell.script.results.isEmpty()) {
        return m_shell.script.results;
    }
    const bool isSeveralAllowed = (m_options & FOS_ALLOWMULTISELECT) != 0;
    const QStringList listed = isSeveralAllowed ? ui::quotedNames(fileName()) : QStringList();
    QStringList paths;
    for (const QString& name : listed.isEmpty() ? QStringList(fileName()) : listed) {
        if (!name.isEmpty()) {
            paths.append(QDir(folder()).absoluteFilePath(name));
        }
    }
    return paths;
}

QString RecordingDialog::folder() const
{
    const auto kept = m_shell.clientFolders.find(m_client);
    for (const QString& candidate :
        {m_folder, kept == m_shell.clientFolders.end() ? QString() : kept->second, m_defaultFolder}) {
        if (!candidate.isEmpty()) {
            return candidate;
        }
    }
    return QDir::currentPath();
}

} // namespace morvane::test
