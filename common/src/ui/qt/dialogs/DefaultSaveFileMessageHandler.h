// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

namespace morvane {

/**
 * English questions that contain the file name unchanged. They are not translated. The save flow uses this handler if
 * it receives no other one.
 *
 * @snippet 14-save-in-your-words/main.cpp handler
 */
class MORVANE_UI_EXPORT DefaultSaveFileMessageHandler : public SaveFileMessageHandlerInterface
{
public:
    DefaultSaveFileMessageHandler();
    ///@{
    /** A copy is equal and independent. */
    DefaultSaveFileMessageHandler(const DefaultSaveFileMessageHandler& other);
    DefaultSaveFileMessageHandler& operator=(const DefaultSaveFileMessageHandler& other);
    ///@}
    ~DefaultSaveFileMessageHandler() override;

    /** Stores the name for the texts of the other operations, and returns it. */
    std::string filenameToCheck(const std::string& filename) override;
    std::string okToOverwriteMessage() override;
    std::string unableToOverwriteMessage() override;
    std::string systemAccessError(const std::string& errorText) override;

private:
    std::string m_filename;
};

} // namespace morvane
