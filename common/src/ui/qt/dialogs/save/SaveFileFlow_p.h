// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace morvane {
class SaveFileMessageHandlerInterface;
}

namespace morvane::ui {

/**
 * The save flow: shows a file dialog until the user has picked a name that may be overwritten and can be written. Keeps
 * what a SaveFileQtDialog and a SaveFileWinDialog have in common. Derived classes make the dialog and talk to it.
 */
struct SaveFileFlow
{
    /** @param handler null for the default one */
    SaveFileFlow(QWidget* parent, const std::string& caption, const std::string& directory, const std::string& filename,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    virtual ~SaveFileFlow();

    /** Makes a flow and its dialog. `filters` are parameters of setUp(). */
    template <typename Flow, typename... Filters>
    static std::shared_ptr<Flow> make(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filename, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler,
        const Filters&... filters)
    {
        auto flow = std::make_shared<Flow>(parent, caption, directory, filename, std::move(handler));
        flow->setUp(filters...);
        return flow;
    }

    /** Makes the dialog with name filters that are joined by `;;`. */
    void setUp(const std::string& filter, const std::string& helpTopic);
    /** Makes the dialog with one name filter for each writer. An index outside of the list selects the first one. */
    void setUp(const std::vector<std::string>& writerFilters, int selectedWriterIndex, const std::string& helpTopic);

    /**
     * Runs the flow. Ends when a name is picked, when the user gives up, or when the dialog is destroyed. The save-file
     * object may be destroyed meanwhile. Returns whether m_selectedFilename may be written.
     */
    static bool launch(std::shared_ptr<SaveFileFlow> flow);
    /** The save-file object is destroyed. A flow that is running asks nothing more and ends. */
    virtual void abandon() { m_isAbandoned = true; }
    /** The position of the chosen filter in the caller's list. The first one of equal filters. -1 if it is absent. */
    int selectedWriter();

    virtual void createDialog(const std::string& filter, const std::string& helpTopic) = 0;
    virtual void setNameFilters(const QStringList& filters) = 0;
    virtual void selectNameFilter(int position) = 0;
    /** Selects the file to start with. Switches off the dialog's own question before overwriting. */
    virtual void finishDialog() = 0;

    /** Shows the dialog modally and returns whether the user has accepted. */
    virtual bool runDialog() = 0;
    virtual QStringList selectedFiles() = 0;
    /** The caller's filters, even while the dialog shows a typed wildcard instead of one of them. */
    virtual QStringList nameFilters() = 0;
    /** The position of the chosen filter in nameFilters(). */
    virtual int selectedPosition() = 0;
    /** The chosen filter as the dialog shows it. */
    virtual QString selectedFilter() = 0;
    virtual QWidget* messageParent() = 0;
    /** Whether neither the dialog nor its parent was destroyed. */
    virtual bool hasDialog() = 0;

    QPointer<QWidget> m_parent;
    std::string m_caption;
    std::string m_directory;
    std::string m_filename;
    std::string m_selectedFilename;
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> m_messageHandler;
    bool m_isAbandoned = false;

private:
    enum class Verdict
    {
        Good,
        ShowAgain,
        GivenUp
    };
    bool run();
    /** Checks m_selectedFilename, and asks the user if necessary. */
    Verdict judge();
    bool isAlive() { return !m_isAbandoned && hasDialog(); }
    bool isConfirmed(const std::string& question);
    QString filterForExtension();
};

} // namespace morvane::ui
