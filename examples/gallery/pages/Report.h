// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <vector>

namespace gallery {

/** A short report of readings, and its file formats. */
struct Report
{
    struct Reading
    {
        QString sensor;
        QString quantity;
        QString value;
    };

    QString title;
    std::vector<Reading> readings;
    QString comment{};
    /** A name of IANA, as it stands in a web page. */
    QString encoding = QStringLiteral("UTF-8");

    /** Returns readings of a small plant. */
    static Report example(const QString& title);

    QString toText() const;
    QString toCsv() const;
    QString toHtml() const;
};

/** One file format of a report. */
struct ReportWriter
{
    QString name;
    std::string filter; ///< name filter of the files
    QString (Report::*write)() const;
};

/** Text, CSV and HTML. */
const std::vector<ReportWriter>& reportWriters();

} // namespace gallery
