#pragma once

#include "fakes/RecordingControls.h"
#include "fakes/RecordingShell.h"

namespace morvane::test {

/**
 * The dialog of a RecordingShell. Its `user…` operations do what a user does while Show runs; the callbacks of the
 * advised sinks run inside them.
 */
class RecordingDialog final : public IFileOpenDialog
{
public:
    RecordingDialog(RecordingShell& shell, bool saving);
    virtual ~RecordingDialog();
    RecordingDialog(const RecordingDialog&) = delete;
    RecordingDialog& operator=(const RecordingDialog&) = delete;

    void userAccepts();
    void userCancels();
    void userTypesName(const QString& name) { m_fileName = name; }
    /** @param index counted from 1 */
    void userPicksType(UINT index);
    void userEntersFolder(const QString& folder);
    void userSelects(const QString& path);
    void userClicks(DWORD control);
    void userToggles(DWORD control);
    void userPicksItem(DWORD control, DWORD item);
    /** How the question whether a file may be replaced is answered when no sink decides. */
    void userAnswersOverwriting(bool yes) { m_replaces = yes; }

    /** Calls every advised sink, as the dialog itself does. */
    HRESULT fire(const std::function<HRESULT(IFileDialogEvents&)>& call);
    HRESULT fireControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

    RecordingControls& controls() { return m_controls; }
    bool isShown() const { return m_running; }
    QString title() const { return m_title; }
    QString fileName() const { return m_fileName.value_or(QString()); }
    HWND owner() const { return m_owner; }

    /** QueryInterface without a trace in the record. */
    HRESULT give(REFIID iid, void** object);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE Show(HWND owner) override;
    HRESULT STDMETHODCALLTYPE SetFileTypes(UINT count, const COMDLG_FILTERSPEC* types) override;
    HRESULT STDMETHODCALLTYPE SetFileTypeIndex(UINT index) override;
    HRESULT STDMETHODCALLTYPE GetFileTypeIndex(UINT* index) override;
    HRESULT STDMETHODCALLTYPE Advise(IFileDialogEvents* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetOptions(FILEOPENDIALOGOPTIONS options) override;
    HRESULT STDMETHODCALLTYPE GetOptions(FILEOPENDIALOGOPTIONS* options) override;
    HRESULT STDMETHODCALLTYPE SetDefaultFolder(IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE SetFolder(IShellItem* folder) override;
    HRESULT STDMETHODCALLTYPE GetFolder(IShellItem** folder) override;
    HRESULT STDMETHODCALLTYPE GetCurrentSelection(IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE SetFileName(LPCWSTR name) override;
    HRESULT STDMETHODCALLTYPE GetFileName(LPWSTR* name) override;
    HRESULT STDMETHODCALLTYPE SetTitle(LPCWSTR title) override;
    HRESULT STDMETHODCALLTYPE SetOkButtonLabel(LPCWSTR text) override;
    HRESULT STDMETHODCALLTYPE SetFileNameLabel(LPCWSTR label) override;
    HRESULT STDMETHODCALLTYPE GetResult(IShellItem** item) override;
    HRESULT STDMETHODCALLTYPE AddPlace(IShellItem* item, FDAP where) override;
    HRESULT STDMETHODCALLTYPE SetDefaultExtension(LPCWSTR extension) override;
    HRESULT STDMETHODCALLTYPE Close(HRESULT result) override;
    HRESULT STDMETHODCALLTYPE SetClientGuid(REFGUID guid) override;
    HRESULT STDMETHODCALLTYPE ClearClientData() override;
    HRESULT STDMETHODCALLTYPE SetFilter(IShellItemFilter* filter) override;
    HRESULT STDMETHODCALLTYPE GetResults(IShellItemArray** items) override;
    HRESULT STDMETHODCALLTYPE GetSelectedItems(IShellItemArray** items) override;

private:
    std::optional<HRESULT> record(const char* method, const std::string& arguments = std::string());
    void announceOpening();
    void play();
    void finish(HRESULT outcome);
    QStringList chosenPaths() const;
    QString folder() const;
    bool mayReplace(const QString& path);
    HRESULT giveItem(const QString& path, IShellItem** item, HRESULT without);

    RecordingShell& m_shell;
    const bool m_saving;
    ULONG m_references = 1;
    FILEOPENDIALOGOPTIONS m_options;
    std::vector<std::pair<QString, QString>> m_types;
    UINT m_typeIndex = 0;
    std::map<DWORD, ui::ComPtr<IFileDialogEvents>> m_sinks;
    DWORD m_lastCookie = 0;
    std::optional<QString> m_fileName;
    QString m_folder;
    QString m_title;
    QString m_selected;
    RecordingControls m_controls;
    HWND m_owner = nullptr;
    bool m_running = false;
    bool m_replaces = true;
    std::optional<HRESULT> m_outcome;
    QStringList m_results;
};

} // namespace morvane::test
