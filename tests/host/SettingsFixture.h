// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ApplicationSettings.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace morvane::test {

/** A settings file of its own in a directory of its own. */
class SettingsFixture : public ::testing::Test
{
protected:
    static QByteArray read(const QString& name)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    static void write(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        ASSERT_EQ(file.write(content), content.size());
    }

    /** The value that a new object reads from the disk. */
    QByteArray onDisk(const std::string& key) const { return ApplicationSettings(m_file).getByteArrayValue(key); }

    const QTemporaryDir m_directory;
    const QString m_file = m_directory.filePath(QStringLiteral("settings.ini"));
};

} // namespace morvane::test
