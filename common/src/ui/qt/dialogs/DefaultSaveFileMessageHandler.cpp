// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"

#include <QCoreApplication>

namespace morvane {

namespace {

std::string translated(const char* text)
{
    return QCoreApplication::translate("morvane::DefaultSaveFileMessageHandler", text).toStdString();
}

/** Puts names in the places of %1 and %2, as they are: not every file name is valid UTF-8. */
std::string filledIn(const std::string& text, const std::string& first, const std::string& second = std::string())
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPlace = text[i] == '%' && i + 1 < text.size() && (text[i + 1] == '1' || text[i + 1] == '2');
        if (isPlace) {
            result += text[++i] == '1' ? first : second;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace

DefaultSaveFileMessageHandler::DefaultSaveFileMessageHandler() = default;

DefaultSaveFileMessageHandler::DefaultSaveFileMessageHandler(const DefaultSaveFileMessageHandler& other) = default;

DefaultSaveFileMessageHandler& DefaultSaveFileMessageHandler::operator=(
    const DefaultSaveFileMessageHandler& other) = default;

DefaultSaveFileMessageHandler::~DefaultSaveFileMessageHandler() = default;

std::string DefaultSaveFileMessageHandler::filenameToCheck(const std::string& filename)
{
    m_filename = filename;
    return m_filename;
}

std::string DefaultSaveFileMessageHandler::okToOverwriteMessage()
{
    return filledIn(translated(QT_TRANSLATE_NOOP("morvane::DefaultSaveFileMessageHandler",
                        "File %1 already exists. Do you want to replace it?")),
        m_filename);
}

std::string DefaultSaveFileMessageHandler::unableToOverwriteMessage()
{
    return filledIn(translated(QT_TRANSLATE_NOOP("morvane::DefaultSaveFileMessageHandler",
                        "Unable to save file %1, check access permissions for the file and the "
                        "parent directory. Do you want to try again and choose a different "
                        "location?")),
        m_filename);
}

std::string DefaultSaveFileMessageHandler::systemAccessError(const std::string& errorText)
{
    return filledIn(translated(QT_TRANSLATE_NOOP("morvane::DefaultSaveFileMessageHandler",
                        "Unable to access file %1: %2. Do you want to try again and choose a different "
                        "location?")),
        m_filename, errorText);
}

} // namespace morvane
