// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/Report.h"

namespace gallery {

namespace {

QString csvField(QString text)
{
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

QString cell(const QString& text)
{
    return QStringLiteral("<td>%1</td>").arg(text.toHtmlEscaped());
}

} // namespace

Report Report::example(const QString& title)
{
    return {title, {{QStringLiteral("T1"), QStringLiteral("Temperature, inlet"), QStringLiteral("21.5 °C")},
                       {QStringLiteral("T2"), QStringLiteral("Temperature, outlet"), QStringLiteral("48.1 °C")},
                       {QStringLiteral("P1"), QStringLiteral("Pressure"), QStringLiteral("1013.2 hPa")},
                       {QStringLiteral("F1"), QStringLiteral("Flow"), QStringLiteral("4.2 m³/h")}}};
}

QString Report::toText() const
{
    QString text = title + QStringLiteral("\n\n");
    for (const Reading& reading : readings) {
        text += QStringLiteral("%1  %2  %3\n").arg(reading.sensor, reading.quantity.leftJustified(20), reading.value);
    }
    return comment.isEmpty() ? text : text + QStringLiteral("\nComment: %1\n").arg(comment);
}

QString Report::toCsv() const
{
    QString text = QStringLiteral("\"Sensor\",\"Quantity\",\"Reading\"\n");
    for (const Reading& reading : readings) {
        text += csvField(reading.sensor) + QLatin1Char(',') + csvField(reading.quantity) + QLatin1Char(',') +
                csvField(reading.value) + QLatin1Char('\n');
    }
    if (!comment.isEmpty()) {
        text += QStringLiteral("\"Comment\",%1,\n").arg(csvField(comment));
    }
    return text;
}

QString Report::toHtml() const
{
    const QString escapedTitle = title.toHtmlEscaped();
    QString text = QStringLiteral("<!DOCTYPE html>\n<html>\n<head><meta charset=\"%2\"><title>%1</title></head>\n"
                                  "<body>\n<h1>%1</h1>\n<table>\n")
                       .arg(escapedTitle, encoding);
    for (const Reading& reading : readings) {
        text += QStringLiteral("<tr>") + cell(reading.sensor) + cell(reading.quantity) + cell(reading.value) +
                QStringLiteral("</tr>\n");
    }
    text += QStringLiteral("</table>\n");
    if (!comment.isEmpty()) {
        text += QStringLiteral("<p>%1</p>\n").arg(comment.toHtmlEscaped());
    }
    text += QStringLiteral("</body>\n</html>\n");
    return text;
}

const std::vector<ReportWriter>& reportWriters()
{
    static const std::vector<ReportWriter> writers = {
        {QStringLiteral("text"), "Text (*.txt)", &Report::toText},
        {QStringLiteral("CSV"), "Table (*.csv)", &Report::toCsv},
        {QStringLiteral("HTML"), "Web page (*.html)", &Report::toHtml},
    };
    return writers;
}

} // namespace gallery
