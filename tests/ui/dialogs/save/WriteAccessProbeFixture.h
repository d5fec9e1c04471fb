// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/DiskState.h"
#include "ui/qt/dialogs/save/WriteAccessProbe_p.h"
#include "ui/qt/util/FilePath_p.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <boost/filesystem/operations.hpp>

#include <string>

namespace morvane::test {

namespace fs = boost::filesystem;

/** The probe in a directory of its own. */
class WriteAccessProbeTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_directory.isValid()); }

    fs::path path(const std::string& name) const
    {
        return morvane::ui::pathFromUtf8(m_directory.path().toStdString()) / morvane::ui::pathFromUtf8(name);
    }

    fs::path makeFile(const std::string& name, const QByteArray& content = "content") const
    {
        QFile file(m_directory.filePath(QString::fromStdString(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }

    /** Expects that the probe gives this answer and leaves the directory unchanged. */
    void expectAnswer(bool expected, const fs::path& target)
    {
        const DiskState before(m_directory.path());
        EXPECT_EQ(morvane::ui::checkWriteAccess(target), expected) << target;
        EXPECT_EQ(DiskState(m_directory.path()).text(), before.text());
    }

    QTemporaryDir m_directory;
};

} // namespace morvane::test
