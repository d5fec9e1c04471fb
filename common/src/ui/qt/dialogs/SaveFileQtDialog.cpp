#include "ui/qt/dialogs/SaveFileQtDialog.h"

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileLoop.h"

#include <utility>

struct SaveFileQtDialog::Impl : SaveFileState
{
    using SaveFileState::SaveFileState;

    ~Impl() override
    {
        if (m_isOrphan) {
            delete m_dialog;
        }
    }

    void createDialog(const std::string& filter, const std::string& helpTopic) override
    {
        m_isOrphan = !m_parent;
        m_dialog = new QExtendedFileDialog(
            m_parent.data(), m_caption, m_directory, filter, helpTopic, QFileDialog::AcceptSave);
    }

    void setNameFilters(const QStringList& filters) override { m_dialog->setNameFilters(filters); }
    void selectNameFilter(const QString& filter) override { m_dialog->selectNameFilter(filter); }
    void finishDialog() override
    {
        m_dialog->selectFile(QString::fromStdString(m_filename));
        m_dialog->setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::DontUseNativeDialog);
    }

    bool run() override { return m_dialog->exec() == QDialog::Accepted; }
    QStringList selectedFiles() override { return m_dialog->selectedFiles(); }
    QStringList nameFilters() override { return m_dialog ? m_dialog->nameFilters() : QStringList(); }
    QString selectedFilter() override { return m_dialog ? m_dialog->selectedNameFilter() : QString(); }
    QWidget* messageParent() override { return m_dialog; }
    bool isAlive() override { return m_dialog; }

    QPointer<QExtendedFileDialog> m_dialog;
    bool m_isOrphan = false; // nobody else deletes a dialog without a parent
};

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic)
    : SaveFileQtDialog(parent, caption, directory, filename, filter, helpTopic,
          std::make_unique<morvane::DefaultSaveFileMessageHandler>())
{
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::string& filter, const std::string& helpTopic,
    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(std::make_unique<Impl>(parent, caption, directory, filename, std::move(handler)))
{
    m_impl->setUp(filter, helpTopic);
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic)
    : SaveFileQtDialog(parent, caption, directory, filename, writerFilters, selectedWriterIndex, helpTopic,
          std::make_unique<morvane::DefaultSaveFileMessageHandler>())
{
}

SaveFileQtDialog::SaveFileQtDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, const std::vector<std::string>& writerFilters, int selectedWriterIndex,
    const std::string& helpTopic, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_impl(std::make_unique<Impl>(parent, caption, directory, filename, std::move(handler)))
{
    m_impl->setUp(writerFilters, selectedWriterIndex, helpTopic);
}

SaveFileQtDialog::~SaveFileQtDialog() = default;

bool SaveFileQtDialog::launch()
{
    return m_impl->launch();
}

std::string SaveFileQtDialog::selectedFilename()
{
    return m_impl->m_selectedFilename;
}

std::string SaveFileQtDialog::selectedFilter()
{
    return m_impl->selectedFilter().toStdString();
}

int SaveFileQtDialog::selectedWriter() const
{
    return m_impl->selectedWriter();
}

QExtendedFileDialog* SaveFileQtDialog::dialog()
{
    return m_impl->m_dialog;
}
