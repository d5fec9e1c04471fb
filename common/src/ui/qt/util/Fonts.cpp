// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/Fonts.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QDir>
#include <QFontDatabase>

namespace morvane::ui {

void addFontToDatabase(const std::string& fontFile)
{
    expectGuiThread("addFontToDatabase");
    const int id = QFontDatabase::addApplicationFont(QString::fromStdString(fontFile));
    if (id == -1) {
        QMessageLogger().warning("Warning: Failed to load TrueType font from %s", fontFile.c_str());
    }
}

void addFontsToDatabase(const std::string& fontDirectory)
{
    const QString directory = QString::fromStdString(fontDirectory);
    const QStringList names = QDir(directory).entryList(QDir::Files, QDir::NoSort);
    for (const QString& name : names) {
        const QString path = QStringLiteral("%1%2%3").arg(directory, QString(QDir::separator()), name);
        addFontToDatabase(path.toStdString());
    }
}

} // namespace morvane::ui
