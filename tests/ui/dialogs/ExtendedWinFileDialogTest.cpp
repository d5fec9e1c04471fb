// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include <QFile>

namespace morvane::test {

ExtendedWinFileDialogTest::ExtendedWinFileDialogTest()
{
    EXPECT_TRUE(m_folder.isValid());
}

void ExtendedWinFileDialogTest::TearDown()
{
    EXPECT_EQ(m_shell.liveObjects(), 0);
    EXPECT_EQ(m_shell.liveStrings(), 0);
    EXPECT_EQ(m_shell.apartments(), m_expectedApartments);
    EXPECT_THAT(m_shell.calls(), ::testing::Not(::testing::Contains(::testing::StartsWith("ERROR"))));
}

ExtendedWinFileDialogTest::Dialog ExtendedWinFileDialogTest::make(const Arguments& arguments)
{
    const auto mode = arguments.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen;
    return std::make_unique<ExtendedWinFileDialog>(*m_parent, arguments.caption, arguments.directory, arguments.filter,
        arguments.helpTopic, mode, arguments.acceptMenu);
}

ExtendedWinFileDialogTest::Dialog ExtendedWinFileDialogTest::openDialog(const std::string& filter)
{
    Arguments arguments;
    arguments.filter = filter;
    return make(arguments);
}

ExtendedWinFileDialogTest::Dialog ExtendedWinFileDialogTest::saveDialog(const std::string& filter)
{
    Arguments arguments;
    arguments.filter = filter;
    arguments.saving = true;
    return make(arguments);
}

ExtendedWinFileDialogTest::Dialog ExtendedWinFileDialogTest::menuDialog()
{
    Arguments arguments;
    arguments.acceptMenu = true;
    return make(arguments);
}

QDialog::DialogCode ExtendedWinFileDialogTest::run(ExtendedWinFileDialog& dialog, const Play& play)
{
    m_shell.script.duringShow = play;
    m_shell.script.showResult = HRESULT_FROM_WIN32(ERROR_CANCELLED);
    const QDialog::DialogCode result = dialog.exec();
    m_shell.script.duringShow = nullptr;
    return result;
}

ExtendedWinFileDialogTest::Calls ExtendedWinFileDialogTest::callsOf(const std::function<void()>& action)
{
    m_shell.clearCalls();
    action();
    return m_shell.calls();
}

void ExtendedWinFileDialogTest::makeFile(const QString& name) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
}

} // namespace morvane::test
