// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QListView>
#include <QPointer>

namespace morvane::test {

FileDialogTest::FileDialogTest()
{
    EXPECT_TRUE(m_folder.isValid());
}

void FileDialogTest::TearDown()
{
    EXPECT_TRUE(overrideCursors().empty()) << "a cursor was left behind";
}

void FileDialogTest::makeFile(const QString& name) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
}

void FileDialogTest::makeFiles(const QStringList& names) const
{
    for (const QString& name : names) {
        makeFile(name);
    }
}

void FileDialogTest::makeFolder(const QString& name) const
{
    ASSERT_TRUE(QDir().mkpath(path(name))) << name.toStdString();
}

FileDialogTest::Dialog FileDialogTest::openDialog(const std::string& filter, const std::string& helpTopic)
{
    return makeDialog(filter, helpTopic, QFileDialog::AcceptOpen);
}

FileDialogTest::Dialog FileDialogTest::saveDialog(const std::string& filter)
{
    return makeDialog(filter, "", QFileDialog::AcceptSave);
}

FileDialogTest::Dialog FileDialogTest::makeDialog(
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode mode)
{
    return std::make_unique<QExtendedFileDialog>(
        *m_parent, "Measurement", folder().toStdString(), filter, helpTopic, mode);
}

int FileDialogTest::run(QExtendedFileDialog& dialog, const Act& act)
{
    ModalScript script;
    return run(dialog, script, act);
}

int FileDialogTest::run(QExtendedFileDialog& dialog, ModalScript& script, const Act& act)
{
    bool acted = false;
    // Uses a separate timer, so that the steps of the script remain for the windows that the dialog opens.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (acted || !dialog.isVisible()) {
            return;
        }
        acted = true;
        const QPointer<QExtendedFileDialog> open(&dialog);
        FileDialogDriver driver(dialog);
        act(driver);
        if (open && open->isVisible()) {
            open->reject();
        }
    });
    poll.start(1);
    const int result = dialog.exec();
    EXPECT_TRUE(acted);
    EXPECT_TRUE(script.finished());
    return result;
}

QFileSystemModel& FileDialogTest::fileSystemModel(const QExtendedFileDialog& dialog)
{
    return *qobject_cast<QFileSystemModel*>(dialog.findChild<QListView*>(QStringLiteral("listView"))->model());
}

} // namespace morvane::test
