// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/HelpLauncher.h"
#include "support/ModalScript.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace morvane::test {

/** Takes the place of the desktop's browser. */
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

class HelpLauncherTest : public ::testing::Test
{
protected:
    HelpLauncherTest()
    {
        QDir(m_directory.path()).mkpath(QStringLiteral("help/dialogs"));
        QDir(m_directory.path()).mkpath(QStringLiteral("help-of-others"));
        m_launcher.setHelpDirectory(m_directory.filePath(QStringLiteral("help")));
    }

    void makePage(const QString& relativePath)
    {
        QFile page(m_directory.filePath(relativePath));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly)) << relativePath.toStdString();
    }

    /** Shows the topic and returns the text of the message box that opens; closes the box with Return. */
    QString textOfBox(const std::string& topic)
    {
        QString text;
        ModalScript user;
        user.on<QMessageBox>([&text](QMessageBox& box) {
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            text = box.text();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        m_launcher.showHelp(topic);
        EXPECT_TRUE(user.finished()) << topic;
        return text;
    }

    void expectBoxOnly(const std::string& topic)
    {
        const QString text = textOfBox(topic);
        EXPECT_TRUE(text.contains(QString::fromStdString(topic))) << text.toStdString();
        EXPECT_TRUE(m_browser.opened.isEmpty())
            << topic << " opened " << m_browser.opened.value(0).toString().toStdString();
    }

    void expectPage(const std::string& topic, const QString& relativePath)
    {
        m_browser.opened.clear();
        m_launcher.showHelp(topic);
        ASSERT_EQ(m_browser.opened.size(), 1) << topic;
        EXPECT_TRUE(m_browser.opened.first().isLocalFile());
        EXPECT_EQ(m_browser.opened.first().toLocalFile(),
            QDir(m_directory.path()).canonicalPath() + QLatin1Char('/') + relativePath);
    }

    const QTemporaryDir m_directory;
    HelpLauncher m_launcher;
    Browser m_browser;
};

} // namespace morvane::test
