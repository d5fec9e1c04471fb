// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>

#include <ostream>

// GoogleTest finds these by argument-dependent lookup, so they are in the namespace of the types.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QUrl& url, std::ostream* out)
{
    *out << url.toString().toStdString();
}
