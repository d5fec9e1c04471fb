// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/DiskNames.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

inline void pressAccept(QFileDialog& dialog)
{
    morvane::test::FileDialogDriver(dialog).click(QDialogButtonBox::Save);
}

inline void pressCancel(QFileDialog& dialog)
{
    morvane::test::FileDialogDriver(dialog).click(QDialogButtonBox::Cancel);
}

inline void acceptName(QFileDialog& dialog, const QString& name)
{
    const morvane::test::FileDialogDriver driver(dialog);
    driver.typeName(name);
    driver.click(QDialogButtonBox::Save);
}

/** Sends the key to the button that has the focus, as a real keyboard does. */
inline void pressKey(QMessageBox& box, Qt::Key key)
{
    QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
}

/** The save flow on the native dialog (true) and on the Qt dialog (false), in a directory of its own. */
class SaveFlow : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_directory.isValid());
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        m_parent = new QWidget;
        m_parent->show();
    }
    void TearDown() override
    {
        delete m_parent;
        ExtendedFileDialog::setUseNativeFileDialog(true);
    }

    std::string directory() const { return m_directory.path().toStdString(); }
    std::string path(const std::string& name) const { return directory() + "/" + name; }

    /** A name that the extension rule does not change has the form of the dialog: with the native dialog, the form of
     * the platform. */
    std::string unchanged(const std::string& name) const
    {
        return GetParam() ? QDir::toNativeSeparators(QString::fromStdString(path(name))).toStdString() : path(name);
    }
    QString refused(const QString& name) const { return morvane::test::refusedPath(m_directory.path(), name); }

    void makeFile(const std::string& name, const QByteArray& content = "old content") const
    {
        QFile file(QString::fromStdString(path(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray contentOf(const std::string& name) const
    {
        QFile file(QString::fromStdString(path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    QStringList entries() const { return QDir(m_directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    std::unique_ptr<SaveFileDialog> makeFlow(const std::string& filter = "Data files (*.dat)",
        std::unique_ptr<morvane::SaveFileMessageHandlerInterface> handler = nullptr)
    {
        return std::make_unique<SaveFileDialog>(
            m_parent.data(), "Save data", directory(), "", filter, "", std::move(handler));
    }
    std::unique_ptr<SaveFileDialog> makeFlow(const std::vector<std::string>& writers, int selected)
    {
        return std::make_unique<SaveFileDialog>(
            m_parent.data(), "Save data", directory(), "report", writers, selected, "");
    }

    // These tests operate Qt's widgets, so the native dialog is made of widgets on every platform.
    morvane::ui::WidgetShell m_shell{morvane::ui::WidgetShell::Appearance::AlwaysWidgets};
    morvane::ui::ShellOverride m_override{m_shell};
    QTemporaryDir m_directory;
    QPointer<QWidget> m_parent;
};

inline std::string saveFlowName(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "native" : "qt";
}
