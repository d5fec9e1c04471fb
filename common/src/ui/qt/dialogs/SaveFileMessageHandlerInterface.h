#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <string>

namespace morvane {

/**
 * Words the questions of the save flow (SaveFileDialog). Derive from it to translate them, or to say more than the
 * default handler does. The save-file object owns its handler and calls it on the GUI thread.
 *
 * All text is UTF-8 and shown as plain text: markup in it is not interpreted. An exception thrown by a handler leaves
 * `launch()`. An operation may destroy the parent of the dialog, or the save-file object; `launch()` then returns false
 * without a further question, and the handler is destroyed afterwards.
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
     * Called first, once for each name that the user accepts.
     * @param filename the chosen name, its extension applied
     * @return the name whose existence decides whether the user is asked about overwriting. Where the file can be
     * written is always tried with @p filename.
     */
    virtual std::string filenameToCheck(const std::string& filename) = 0;
    /** The question asked when the name to check exists; the answers are Yes and No. */
    virtual std::string okToOverwriteMessage() = 0;
    /** The question asked when the chosen name cannot be written; Yes shows the dialog again, No gives up. */
    virtual std::string unableToOverwriteMessage() = 0;
    /**
     * The text for a failure that the operating system reported. For hosts' own use; the save flow does not call it.
     * @param errorText the system's description; may be empty
     */
    virtual std::string systemAccessError(const std::string& errorText) = 0;
};

} // namespace morvane
