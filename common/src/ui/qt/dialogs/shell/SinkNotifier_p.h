// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/EventSinks_p.h"
#include "ui/qt/dialogs/shell/FileDialogObserver_p.h"

#include <exception>
#include <functional>

namespace morvane::ui {

/**
 * Notifies the advised sinks of one dialog of the events in a run, until the run has ended.
 *
 * An exception from a sink is kept until rethrow(). So it never passes through Qt's event loop.
 */
class SinkNotifier
{
public:
    /**
     * @param dialog   passed to the sinks; not owned
     * @param onThrown called when a sink has thrown; must end the run
     */
    SinkNotifier(IFileDialog& dialog, std::function<void()> onThrown);

    HRESULT advise(IFileDialogEvents* sink, DWORD* cookie) { return m_sinks.advise(sink, cookie); }
    HRESULT unadvise(DWORD cookie) { return m_sinks.unadvise(cookie); }

    void beginRun() { m_ended = false; }
    /** From now on no further event is sent. Sinks that still wait for the current event receive it. */
    void endRun() { m_ended = true; }
    bool hasRunEnded() const { return m_ended; }
    /** Throws the exception of a sink, if there is one, and forgets it. */
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
