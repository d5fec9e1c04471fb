#pragma once

#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/FileDialogObserver_p.h"

#include <exception>
#include <functional>

namespace morvane::ui {

/**
 * Tells the advised sinks of one dialog what happens in a run, until the run has ended.
 *
 * An exception that leaves a sink is kept until rethrow(), so that it never crosses Qt's event loop.
 */
class SinkNotifier
{
public:
    /**
     * @param dialog   named to the sinks; not owned
     * @param onThrown called when a sink has thrown; is to end the run
     */
    SinkNotifier(IFileDialog& dialog, std::function<void()> onThrown);

    HRESULT advise(IFileDialogEvents* sink, DWORD* cookie) { return m_sinks.advise(sink, cookie); }
    HRESULT unadvise(DWORD cookie) { return m_sinks.unadvise(cookie); }

    void beginRun() { m_ended = false; }
    /** From here on no sink is called. */
    void endRun() { m_ended = true; }
    bool hasRunEnded() const { return m_ended; }
    /** Throws what a sink has thrown, once. */
    void rethrow();

    /** Returns whether every sink allows it. */
    bool folderChanging(const QString& folder);
    void folderChanged();
    void selectionChanged();
    void typeChanged();
    FileDialogObserver::OverwriteAnswer overwriting(const QString& path);
    /** Returns whether every sink allows it and none has ended the run. */
    bool accepting();
    void tellControls(const std::function<HRESULT(IFileDialogControlEvents&)>& call);

private:
    HRESULT tell(const std::function<HRESULT(IFileDialogEvents&)>& call);
    HRESULT guarded(const std::function<HRESULT()>& call);

    IFileDialog& m_dialog;
    const std::function<void()> m_onThrown;
    EventSinks m_sinks;
    bool m_ended = false;
    std::exception_ptr m_exception;
};

} // namespace morvane::ui
