#include "ui/qt/dialogs/SaveFileWinDialog.h"

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/SaveFileLoop.h"

#include <utility>

namespace {

/** The dialogs that outlive their save flow, on purpose; here they stay reachable. */
ExtendedWinFileDialog* keepForever(ExtendedWinFileDialog* dialog)
{
    static auto* const kept = new std::vector<ExtendedWinFileDialog*>;
    kept->push_back(dialog);
    return dialog;
}

} // namespace

struct SaveFileWinDialog::Impl : SaveFileState
{
    using SaveFileState::SaveFileState;

    void createDialog(const std::string& filter, const std::string& helpTopic) override
    {
        m_hasParent = m_parent;
        m_dialog = keepForever(new ExtendedWinFileDialog(
            m_parent.data(), m_caption, m_directory, filter, helpTopic, QFileDialog::AcceptSave, false));
    }

    void setNameFilters(const QStringList& filters) override { m_dialog->setNameFilters(filters); }
    void selectNameFilter(int position) override { m_dialog->currentFilterIndex()->setValue(position + 1); }
    void finishDialog() override
    {
        m_dialog->selectFile(QString::fromStdString(m_filename));
        m_dialog->setDontConfirmOverwrite(true);
    }

    bool run() override { return m_dialog->exec() == QDialog::Accepted; }
    QStringList selectedFiles() override { return m_dialog->selectedFiles(); }
    QStringList nameFilters() override { return m_dialog->nameFilters(); }
    int selectedPosition() override { return m_dialog->currentFilterIndex()->value() - 1; }
    QString selectedFilter() override { return nameFilters().value(selectedPosition()); }
    QWidget* messageParent() override { return m_dialog->parent(); }
    bool hasDialog() override { return m_parent || !m_hasParent; }

    ExtendedWinFileDialog* m_dialog = nullptr;
    bool m_hasParent = false;
};

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic)
    : SaveFileWinDialog(parent, caption, directory, filename, filter, helpTopic,
          std::make_unique<morvane::DefaultSaveFileMessageHandler>())
{
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic,
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(std::make_shared<Impl>(parent, caption, directory, filename, std::move(handler)))
{
    m_impl->setUp(filter, helpTopic);
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic)
    : SaveFileWinDialog(parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic,
          std::make_unique<morvane::DefaultSaveFileMessageHandler>())
{
}

SaveFileWinDialog::SaveFileWinDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(std::make_shared<Impl>(parent, caption, directory, filename, std::move(handler)))
{
    m_impl->setUp(writerFilters, selectedWriterIndex, helpTopic);
}

SaveFileWinDialog::~SaveFileWinDialog()
{
    m_impl->abandon();
}

bool SaveFileWinDialog::launch()
{
    const std::shared_ptr<Impl> impl = m_impl; // this object may go while the dialog is open
    return impl->launch();
}

std::string SaveFileWinDialog::selectedFilename()
{
    return m_impl->m_selectedFilename;
}

std::string SaveFileWinDialog::selectedFilter()
{
    return m_impl->selectedFilter().toStdString();
}

int SaveFileWinDialog::selectedWriter() const
{
    return m_impl->selectedWriter();
}

ExtendedWinFileDialog* SaveFileWinDialog::dialog()
{
    return m_impl->m_dialog;
}
