#pragma once

#include <QString>
#include <QUrl>

#include <ostream>

// Found by GoogleTest through the arguments, and so in the namespace of the types.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QUrl& url, std::ostream* out)
{
    *out << url.toString().toStdString();
}
