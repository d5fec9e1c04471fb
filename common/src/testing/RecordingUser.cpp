#include "testing/RecordingControls.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingItems_p.h"
#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace morvane::test {

namespace {

std::optional<DWORD> usableControl(const RecordingControls& controls, const QString& label)
{
    const auto control = controls.idOf(label);
    return control && controls.state(*control) == CDCS_ENABLEDVISIBLE ? control : std::nullopt;
}

} // namespace

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
    const auto control = usableControl(*m_controls, label);
    if (!control || m_controls->isCheckBox(*control)) {
        return false;
    }
    userClicks(*control);
    return true;
}

bool RecordingDialog::userToggles(const QString& label)
{
    const auto control = usableControl(*m_controls, label);
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

} // namespace morvane::test
