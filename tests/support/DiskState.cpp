// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/DiskState.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace morvane::test {

namespace {

QString describe(const QFileInfo& info)
{
    QString line = info.filePath();
    if (info.isSymLink()) {
        return line + QStringLiteral(" -> ") + info.symLinkTarget();
    }
    line += QStringLiteral(" mode %1").arg(static_cast<int>(info.permissions()), 0, 16);
    if (info.isFile()) {
        QFile file(info.filePath());
        const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
        line += QStringLiteral(" modified %1 bytes ").arg(info.lastModified().toMSecsSinceEpoch()) +
                QString::fromLatin1(content.toHex());
    }
    return line;
}

} // namespace

DiskState::DiskState(const QString& directory)
{
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QStringList lines;
    QDirIterator entries(directory, everything, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        lines.append(describe(entries.fileInfo()));
    }
    lines.sort();
    m_text = lines.join(QLatin1Char('\n')).toStdString();
}

} // namespace morvane::test
