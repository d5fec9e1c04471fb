// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"

namespace morvane {

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
    return "File " + m_filename + " already exists. Do you want to replace it?";
}

std::string DefaultSaveFileMessageHandler::unableToOverwriteMessage()
{
    return "Unable to save file " + m_filename +
           ", check access permissions for the file and the parent directory. Do you want to try again and choose a "
           "different location?";
}

std::string DefaultSaveFileMessageHandler::systemAccessError(const std::string& errorText)
{
    return "Unable to access file " + m_filename + ": " + errorText +
           ". Do you want to try again and choose a different location?";
}

} // namespace morvane
