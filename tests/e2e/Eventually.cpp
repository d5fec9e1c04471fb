// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Eventually.h"

#include <QTest>

namespace morvane::test {

bool eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, timeLimitMs);
}

} // namespace morvane::test
