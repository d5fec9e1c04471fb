// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/DiskNames.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace morvane::test {

bool diskTakesName(const QString& name)
{
#ifdef Q_OS_WIN
    const auto isReserved = [](QChar c) { return c < QLatin1Char(' ') || QStringLiteral("<>:\"/\\|?*").contains(c); };
    const bool isCut = name.endsWith(QLatin1Char(' ')) || name.endsWith(QLatin1Char('.'));
    return !isCut && std::none_of(name.begin(), name.end(), isReserved);
#else
    return !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null);
#endif
}

QStringList namesForDisk(const QStringList& names)
{
    QStringList taken;
    std::copy_if(names.begin(), names.end(), std::back_inserter(taken), diskTakesName);
    return taken;
}

QString refusedPath(const QString& directory, const QString& name)
{
#ifdef Q_OS_WIN
    return directory + QLatin1Char('/') + name + QLatin1Char('|');
#else
    Q_UNUSED(directory)
    return QStringLiteral("/sys/") + name;
#endif
}

} // namespace morvane::test
