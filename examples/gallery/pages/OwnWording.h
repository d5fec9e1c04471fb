// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

#include <QString>

namespace gallery {

/** The questions of the save flow with texts of the user; `%1` is replaced by the file name. */
class OwnWording : public morvane::SaveFileMessageHandlerInterface
{
public:
    OwnWording(const QString& replaceQuestion, const QString& refusedQuestion);

    std::string filenameToCheck(const std::string& filename) override;
    std::string okToOverwriteMessage() override;
    std::string unableToOverwriteMessage() override;
    std::string systemAccessError(const std::string& errorText) override;

private:
    std::string fill(const QString& question) const;

    QString m_replaceQuestion;
    QString m_refusedQuestion;
    QString m_fileName;
};

} // namespace gallery
