// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FontsPage.h"
#include "tour/TourUser.h"

#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <memory>

namespace gallery {

using tour::expect;

namespace {

/**
 * Copies up to two of the machine's font files and one other file to @p folder. Returns the number of fonts.
 */
int fillWithFonts(const QDir& folder)
{
    QFile text(folder.filePath(QStringLiteral("licence.txt")));
    if (text.open(QFile::WriteOnly)) {
        text.write("Free for every use.\n");
    }
    int count = 0;
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    for (const QString& place : places) {
        QDirIterator walk(place, {QStringLiteral("*.ttf")}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext() && count < 2) {
            const QString font = walk.next();
            count += QFile::copy(font, folder.filePath(QFileInfo(font).fileName())) ? 1 : 0;
        }
    }
    return count;
}

} // namespace

std::vector<TourStep> FontsPage::tourSteps(const TourWorkspace&)
{
    const auto folder = std::make_shared<QTemporaryDir>();
    const int fonts = fillWithFonts(QDir(folder->path()));
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("missing-folder"),
        [this, folder] {
            tour::type(*m_folder, folder->filePath(QStringLiteral("missing")));
            tour::click(*m_register);
        },
        [this] {
            return expect(m_result->text() == tr("There is no such folder."), "no message about the missing folder");
        }});
    steps.push_back({QStringLiteral("fonts-registered"),
        [this, folder] {
            tour::type(*m_folder, folder->path());
            tour::click(*m_register);
        },
        [this, fonts] {
            return expect(m_fonts->count() >= fonts &&
                              m_result->text() == tr("%1 of %2 files were fonts.").arg(fonts).arg(fonts + 1),
                QStringLiteral("the page says \"%1\"").arg(m_result->text()));
        }});
    return steps;
}

} // namespace gallery
