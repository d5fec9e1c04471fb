#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace morvane {
class SaveFileMessageHandlerInterface;
}

namespace morvane::ui {

/** What a save-file object holds whatever its dialog is, and the loop that it runs. */
struct SaveFileFlow
{
    /** @param handler null stands for the default one */
    SaveFileFlow(QWidget* parent, const std::string& caption, const std::string& directory, const std::string& filename,
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler);
    virtual ~SaveFileFlow();

    /** Makes the dialog with name filters that are joined by `;;`. Comes before anything else. */
    void setUp(const std::string& filter, const std::string& helpTopic);
    /** Makes the dialog with one name filter a writer; an index outside of the list leaves the first one selected. */
    void setUp(const std::vector<std::string>& writerFilters, int selectedWriterIndex, const std::string& helpTopic);

    /**
     * Runs the dialog until the user picks a name that may be overwritten and can be written, or gives up, or the
     * dialog is destroyed. Returns whether m_selectedFilename may be written to.
     */
    bool launch();
    /** The save-file object is destroyed, perhaps while launch() runs: nothing more is asked then. */
    virtual void abandon() { m_isAbandoned = true; }
    /** The position of the chosen filter among the caller's, of equal ones the first; -1 when it is not there. */
    int selectedWriter();

    virtual void createDialog(const std::string& filter, const std::string& helpTopic) = 0;
    virtual void setNameFilters(const QStringList& filters) = 0;
    virtual void selectNameFilter(int position) = 0;
    /** Names the file to start with, and leaves the question before overwriting to launch(). */
    virtual void finishDialog() = 0;

    /** Runs the dialog modally and returns whether the user accepted. */
    virtual bool run() = 0;
    virtual QStringList selectedFiles() = 0;
    /** The caller's filters, also while a wildcard that the user has typed stands in the place of one of them. */
    virtual QStringList nameFilters() = 0;
    /** The position of the chosen one among them. */
    virtual int selectedPosition() = 0;
    /** The text of the chosen one as the dialog has it. */
    virtual QString selectedFilter() = 0;
    virtual QWidget* messageParent() = 0;
    /** False once the dialog or its parent was destroyed; then launch() asks nothing more of it. */
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
    /** Asks about m_selectedFilename what there is to ask. */
    Verdict judge();
    bool isAlive() { return !m_isAbandoned && hasDialog(); }
    bool isConfirmed(const std::string& question);
    QString filterForExtension();
};

} // namespace morvane::ui
