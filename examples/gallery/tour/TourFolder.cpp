// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/TourFolder.h"

#include <QFile>

namespace gallery {

namespace {

bool write(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray measurement(int lines)
{
    QByteArray content("time;voltage;current\n");
    for (int line = 0; line < lines; ++line) {
        content += QByteArray::number(line) + ";" + QByteArray::number(230 + line % 7) + ";" +
                   QByteArray::number(0.5 + line % 3) + "\n";
    }
    return content;
}

} // namespace

bool TourFolder::create(const QDir& directory)
{
    m_directory = directory;
    return m_directory.mkpath(QStringLiteral("archive")) &&
           write(path(QStringLiteral("run-001.dat")), measurement(120)) &&
           write(path(QStringLiteral("run-002.dat")), measurement(2400)) &&
           write(path(QStringLiteral("run-003.dat")), measurement(90000)) &&
           write(path(QStringLiteral("summary.csv")), measurement(12)) &&
           write(path(QStringLiteral("notes.txt")), "Second run repeated after the fuse was replaced.\n") &&
           write(path(QStringLiteral("archive/run-000.dat")), measurement(60));
}

} // namespace gallery
