// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/save/SaveFileFlow_p.h"

#include "host/MessageBox_p.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/save/SaveFileExtension_p.h"
#include "ui/qt/dialogs/save/WriteAccessProbe_p.h"
#include "ui/qt/util/FilePath_p.h"
#include "ui/qt/util/GuiThread_p.h"

#include <boost/filesystem/operations.hpp>

#include <utility>

namespace morvane::ui {

namespace {

/** Asks a question with No as the default answer. Returns false also if the parent was destroyed meanwhile. */
bool ask(QWidget* parent, const std::string& title, const std::string& question)
{
    return showMessageBox(QMessageBox::Question, QString::fromStdString(title), QString::fromStdString(question),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No, parent) == QMessageBox::Yes;
}

bool existsInAnyForm(const std::string& name)
{
    boost::system::error_code error;
    const boost::filesystem::file_type type = boost::filesystem::status(pathFromUtf8(name), error).type();
    return !error && type != boost::filesystem::status_error && type != boost::filesystem::file_not_found;
}

QStringList toNameFilters(const std::vector<std::string>& filters)
{
    QStringList result;
    for (const std::string& filter : filters) {
        result.append(QString::fromStdString(filter));
    }
    return result;
}

} // namespace

SaveFileFlow::SaveFileFlow(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filename, std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler)
    : m_parent(parent),
      m_caption(caption),
      m_directory(directory),
      m_filename(filename),
      m_messageHandler(std::move(handler))
{
    if (!m_messageHandler) {
        m_messageHandler = std::make_unique<morvane::DefaultSaveFileMessageHandler>();
    }
}

SaveFileFlow::~SaveFileFlow() = default;

void SaveFileFlow::setUp(const std::string& filter, const std::string& helpTopic)
{
    createDialog(filter, helpTopic);
    finishDialog();
}

void SaveFileFlow::setUp(
    const std::vector<std::string>& writerFilters, int selectedWriterIndex, const std::string& helpTopic)
{
    createDialog(writerFilters.empty() ? std::string() : writerFilters.front(), helpTopic);
    const QStringList filters = toNameFilters(writerFilters);
    setNameFilters(filters);
    if (selectedWriterIndex >= 0 && selectedWriterIndex < filters.size()) {
        selectNameFilter(filters.indexOf(filters[selectedWriterIndex]));
    }
    finishDialog();
}

// The flow's owner may be destroyed meanwhile. NOLINTNEXTLINE(performance-unnecessary-value-param)
bool SaveFileFlow::launch(std::shared_ptr<SaveFileFlow> flow)
{
    return flow->run();
}

bool SaveFileFlow::run()
{
    expectGuiThread("SaveFileDialog");
    while (isAlive() && runDialog() && isAlive()) {
        const QStringList files = selectedFiles();
        if (files.isEmpty()) {
            return false;
        }
        m_selectedFilename = applyFilterExtension(files.first().toStdString(), filterForExtension().toStdString());
        const Verdict verdict = judge();
        if (verdict != Verdict::ShowAgain) {
            return verdict == Verdict::Good;
        }
    }
    return false;
}

// Each operation of the message handler may destroy the parent and the dialog with it.
SaveFileFlow::Verdict SaveFileFlow::judge()
{
    const std::string nameToCheck = m_messageHandler->filenameToCheck(m_selectedFilename);
    if (!isAlive()) {
        return Verdict::GivenUp;
    }
    if (existsInAnyForm(nameToCheck) && !isConfirmed(m_messageHandler->okToOverwriteMessage())) {
        return Verdict::ShowAgain;
    }
    if (!isAlive()) {
        return Verdict::GivenUp;
    }
    if (checkWriteAccess(pathFromUtf8(m_selectedFilename))) {
        return Verdict::Good;
    }
    return isConfirmed(m_messageHandler->unableToOverwriteMessage()) ? Verdict::ShowAgain : Verdict::GivenUp;
}

bool SaveFileFlow::isConfirmed(const std::string& question)
{
    return isAlive() && ask(messageParent(), m_caption, question);
}

int SaveFileFlow::selectedWriter()
{
    const QStringList filters = nameFilters();
    const int position = selectedPosition();
    return position >= 0 && position < filters.size() ? filters.indexOf(filters[position]) : -1;
}

QString SaveFileFlow::filterForExtension()
{
    return nameFilters().value(selectedPosition());
}

} // namespace morvane::ui
