// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/QtShims.h"

#include <QByteArray>

namespace morvane::test {

/** A program in a process group of its own. The destructor ends it and all processes that it has started. */
class DesktopProcess : public PreparedProcess
{
public:
    DesktopProcess() = default;
    ~DesktopProcess() override;

    /** Starts the program; whether it runs. */
    bool run(const QString& program, const QStringList& arguments);
    /** The first line that it prints; empty when it ends or is silent for too long. */
    QByteArray firstLine();

protected:
    void prepareChild() override;
};

} // namespace morvane::test
