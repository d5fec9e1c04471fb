// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The library uses two services of the host: help and settings. Here the host replaces both.

#include "host/ApplicationSettings.h"
#include "host/HelpLauncher.h"
#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>
#include <QMessageBox>

#include <map>

//! [help]
class HelpInAWindow : public morvane::HelpLauncher
{
public:
    void showHelp(const std::string& topic) override
    {
        QMessageBox::information(QApplication::activeWindow(), "Help", "About " + QString::fromStdString(topic));
    }
};
//! [help]

//! [settings]
class SettingsInMemory : public morvane::ApplicationSettings
{
public:
    QByteArray getByteArrayValue(const std::string& key) override { return m_values[key]; } // empty for unknown keys
    void depositValue(const std::string& key, const QByteArray& value) override { m_values[key] = value; }

private:
    std::map<std::string, QByteArray> m_values;
};
//! [settings]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    //! [override]
    HelpInAWindow help;
    SettingsInMemory settings;
    const morvane::InstanceOverride<morvane::HelpLauncher> useHelp(help);
    const morvane::InstanceOverride<morvane::ApplicationSettings> useSettings(settings);
    //! [override]

    QWidget window;
    window.show();
    QExtendedFileDialog dialog(window, "Press Help", "", "All (*)", "opening", QFileDialog::AcceptOpen);
    return dialog.exec() == QDialog::Accepted ? 0 : 1;
}
