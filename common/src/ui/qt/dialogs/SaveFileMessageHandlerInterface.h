// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <string>

namespace morvane {

/**
 * Provides the texts of the questions of the save flow (SaveFileDialog). Derive from it to translate the texts, or to
 * give the user more information than the default handler. The save-file object owns its handler and calls it on the
 * GUI thread.
 *
 * All text is UTF-8 and shown as plain text: markup is not interpreted. `launch()` throws any exception that a handler
 * throws. An operation may destroy the parent of the dialog or the save-file object. `launch()` then returns false
 * without further questions, and the handler is destroyed afterwards.
 *
 * @snippet 14-save-in-your-words/main.cpp handler
 * @snippet 14-save-in-your-words/main.cpp flow
 */
class MORVANE_UI_EXPORT SaveFileMessageHandlerInterface
{
public:
    SaveFileMessageHandlerInterface() = default;
    ///@{
    /** A copy is equal and independent. */
    SaveFileMessageHandlerInterface(const SaveFileMessageHandlerInterface&) = default;
    SaveFileMessageHandlerInterface& operator=(const SaveFileMessageHandlerInterface&) = default;
    ///@}
    virtual ~SaveFileMessageHandlerInterface();

    /**
     * Called once for each name that the user accepts, before the other operations.
     * @param filename the chosen name, with its extension
     * @return the name to check: if it exists, the user is asked whether to overwrite it. The write test always uses
     * @p filename.
     */
    virtual std::string filenameToCheck(const std::string& filename) = 0;
    /** Returns the question for the case that the name to check exists; the answers are Yes and No. */
    virtual std::string okToOverwriteMessage() = 0;
    /**
     * Returns the question for the case that the chosen name cannot be written; Yes shows the dialog again, No ends the
     * flow.
     */
    virtual std::string unableToOverwriteMessage() = 0;
    /**
     * Returns the text for a failure that the operating system reported. The save flow does not call it; it is for the
     * host's own use.
     * @param errorText the system's description; may be empty
     */
    virtual std::string systemAccessError(const std::string& errorText) = 0;
};

} // namespace morvane
