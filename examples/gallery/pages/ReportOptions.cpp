// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ReportOptions.h"

#include "pages/Report.h"

#include <boost/make_shared.hpp>

namespace gallery {

namespace {

enum Encoding
{
    Utf8,
    Latin1
};

} // namespace

ReportOptions::ReportOptions()
    : m_encoding(boost::make_shared<morvane::Property<int>>(Utf8)),
      m_comment(boost::make_shared<morvane::Property<std::string>>())
{
}

void ReportOptions::addTo(morvane::ui::FileDialogCustomization& dialog)
{
    dialog.addCustomComboBox("&Encoding:", {"UTF-8", "Latin 1"}, m_encoding);
    dialog.addCustomLineEdit("&Comment:", m_comment);
}

void ReportOptions::applyTo(Report& report) const
{
    report.comment = QString::fromStdString(m_comment->value());
    report.encoding = m_encoding->value() == Latin1 ? QStringLiteral("ISO-8859-1") : QStringLiteral("UTF-8");
}

QByteArray ReportOptions::encoded(const QString& text) const
{
    return m_encoding->value() == Latin1 ? text.toLatin1() : text.toUtf8();
}

QString ReportOptions::decoded(const QByteArray& content) const
{
    return m_encoding->value() == Latin1 ? QString::fromLatin1(content) : QString::fromUtf8(content);
}

QString ReportOptions::encodingName() const
{
    return m_encoding->value() == Latin1 ? QStringLiteral("Latin 1") : QStringLiteral("UTF-8");
}

void ReportOptions::reset()
{
    m_encoding->setValue(Utf8);
    m_comment->setValue(std::string());
}

} // namespace gallery
