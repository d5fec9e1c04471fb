// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow with any names, filters and answers from the dialog and from the host's message handler. The flow ends,
// asks before it replaces a file, leaves no new file behind and damages none.
#include "support/FuzzInput.h"
#include "support/QuietApplication.h"
#include "support/Require.h"
#include "ui/qt/dialogs/save/SaveFileExtension_p.h"
#include "ui/qt/dialogs/save/SaveFileFlow_p.h"
#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

#include <algorithm>

namespace {

using morvane::fuzz::fromUtf8;
using morvane::fuzz::FuzzInput;
using morvane::fuzz::require;
using morvane::ui::SaveFileFlow;

class FuzzedHandler : public morvane::SaveFileMessageHandlerInterface
{
public:
    explicit FuzzedHandler(std::string checked) : m_checked(std::move(checked)) {}

    std::string filenameToCheck(const std::string& filename) override
    {
        return m_checked.empty() ? filename : m_checked;
    }
    std::string okToOverwriteMessage() override { return "Replace?"; }
    std::string unableToOverwriteMessage() override { return "Try again?"; }
    std::string systemAccessError(const std::string& errorText) override { return errorText; }

private:
    const std::string m_checked;
};

/** Answers the flow's questions, which stand in message boxes. */
class Answers : public QObject
{
public:
    explicit Answers(unsigned answers) : m_answers(answers) { startTimer(0); }

    int count() const { return m_count; }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            const bool yes = (m_answers >> (m_count++ % 32) & 1) != 0;
            box->button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
        }
    }

private:
    const unsigned m_answers;
    int m_count = 0;
};

/** Makes a name that always stays below the scratch directory. */
QString nameInside(const std::string& text)
{
    QString name = fromUtf8(text).remove(QChar::Null);
    while (name.contains(QLatin1String(".."))) {
        name.remove(QLatin1String(".."));
    }
    return morvane::fuzz::scratchDirectory() + QLatin1String("/space/") + name;
}

class FuzzedFlow : public SaveFileFlow
{
public:
    FuzzedFlow(FuzzInput& input, std::unique_ptr<FuzzedHandler> handler)
        : SaveFileFlow(nullptr, "Save", std::string(), std::string(), std::move(handler)), m_input(input)
    {
    }

    // The flow is fuzzed without a dialog.
    void createDialog(const std::string&, const std::string&) override {}
    void setNameFilters(const QStringList&) override {}
    void selectNameFilter(int) override {}
    void finishDialog() override {}

    bool runDialog() override
    {
        m_filter = fromUtf8(m_input.line());
        m_files.clear();
        for (int count = m_input.below(3); count > 0; --count) {
            m_files.append(nameInside(m_input.line()));
        }
        return !m_input.isEmpty();
    }
    QStringList selectedFiles() override { return m_files; }
    QStringList nameFilters() override { return QStringList(m_filter); }
    int selectedPosition() override { return 0; }
    QString selectedFilter() override { return m_filter; }
    QWidget* messageParent() override { return nullptr; }
    bool hasDialog() override { return true; }

private:
    FuzzInput& m_input;
    QString m_filter;
    QStringList m_files;
};

const QByteArray precious("precious");

/** A directory with one file and nothing else. */
void prepareSpace()
{
    const QDir scratch(morvane::fuzz::scratchDirectory());
    if (scratch.exists(QStringLiteral("space"))) {
        return;
    }
    scratch.mkpath(QStringLiteral("space/folder"));
    QFile file(scratch.filePath(QStringLiteral("space/old.dat")));
    require(file.open(QIODevice::WriteOnly) && file.write(precious) == precious.size(), "the scratch directory works");
}

void checkSpace()
{
    const QDir space(morvane::fuzz::scratchDirectory() + QLatin1String("/space"));
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    require(space.entryList(everything, QDir::Name) == QStringList({"folder", "old.dat"}), "no file comes or goes");
    require(QDir(space.filePath(QStringLiteral("folder"))).isEmpty(everything), "in the folder neither");
    QFile file(space.filePath(QStringLiteral("old.dat")));
    require(file.open(QIODevice::ReadOnly) && file.readAll() == precious, "an existing file is left as it is");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::startQuietApplication();
    prepareSpace();
    FuzzInput input(data, size);
    const auto answerBits = input.number<std::uint16_t>();
    std::string checked = input.line();
    if (!checked.empty()) {
        checked = nameInside(checked).toStdString();
    }
    const bool checksAnother = !checked.empty();
    const auto flow = std::make_shared<FuzzedFlow>(input, std::make_unique<FuzzedHandler>(checked));
    Answers answers(answerBits);
    const bool mayBeWritten = SaveFileFlow::launch(flow);
    if (mayBeWritten) {
        require(!flow->m_selectedFilename.empty(), "there is a name to write to");
        const bool exists = QFile::exists(QString::fromStdString(flow->m_selectedFilename));
        require(!exists || checksAnother || answers.count() > 0, "nothing is replaced without a question");
    }
    checkSpace();
    return 0;
}
