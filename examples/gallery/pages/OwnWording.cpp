// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/OwnWording.h"

#include <QFileInfo>

namespace gallery {

OwnWording::OwnWording(const QString& replaceQuestion, const QString& refusedQuestion)
    : m_replaceQuestion(replaceQuestion), m_refusedQuestion(refusedQuestion)
{
}

std::string OwnWording::filenameToCheck(const std::string& filename)
{
    m_fileName = QFileInfo(QString::fromStdString(filename)).fileName();
    return filename;
}

std::string OwnWording::okToOverwriteMessage()
{
    return fill(m_replaceQuestion);
}

std::string OwnWording::unableToOverwriteMessage()
{
    return fill(m_refusedQuestion);
}

std::string OwnWording::systemAccessError(const std::string& errorText)
{
    return fill(m_refusedQuestion) + ' ' + errorText;
}

std::string OwnWording::fill(const QString& question) const
{
    QString text = question;
    return text.replace(QStringLiteral("%1"), m_fileName).toStdString();
}

} // namespace gallery
