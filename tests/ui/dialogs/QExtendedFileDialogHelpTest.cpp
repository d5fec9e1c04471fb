// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QAbstractButton>
#include <QTest>

using namespace morvane::test;

namespace {

class QExtendedFileDialogHelp : public FileDialogTest
{
};

} // namespace

TEST_F(QExtendedFileDialogHelp, thereIsNoButtonWithoutATopic)
{
    const Dialog longForm = openDialog();
    const QExtendedFileDialog shortForm(*m_parent, QFileDialog::AcceptOpen);
    QExtendedFileDialog shortSave(*m_parent, QFileDialog::AcceptSave);

    EXPECT_FALSE(FileDialogDriver(*longForm).button(QDialogButtonBox::Help));
    EXPECT_FALSE(FileDialogDriver(shortSave).button(QDialogButtonBox::Help));
    EXPECT_FALSE(shortForm.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help));
}

TEST_F(QExtendedFileDialogHelp, clickShowsTheTopicAndKeepsTheDialogOpen)
{
    const std::string topic = "dialoge/\u00f6ffnen \U0001F600?a=\"b\"";
    const Dialog dialog = openDialog("", topic);

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_TRUE(m_help.topics.empty());
        driver.click(QDialogButtonBox::Help);
        EXPECT_TRUE(driver.isOpen());
    });

    EXPECT_EQ(m_help.topics, std::vector<std::string>({topic}));
}

TEST_F(QExtendedFileDialogHelp, bytesOfTheTopicAreHandedOnUntouched)
{
    const std::string topic("a\0b\xFF\n", 5);
    const Dialog dialog = openDialog("", topic);

    run(*dialog, [&](FileDialogDriver& driver) { driver.click(QDialogButtonBox::Help); });

    EXPECT_EQ(m_help.topics, std::vector<std::string>({topic}));
}

TEST_F(QExtendedFileDialogHelp, everyPressShowsItOnce)
{
    QExtendedFileDialog dialog(*m_parent, "", "", "", "save", QFileDialog::AcceptSave);

    for (int runs = 0; runs < 2; ++runs) {
        run(dialog, [](FileDialogDriver& driver) {
            driver.click(QDialogButtonBox::Help);
            QTest::keyClick(driver.button(QDialogButtonBox::Help), Qt::Key_Space);
        });
    }

    EXPECT_EQ(m_help.topics, std::vector<std::string>(4, "save"));
}
