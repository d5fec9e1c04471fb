#pragma once

#include "ui/qt/dialogs/SaveFileMessageHandlerInterface.h"

namespace morvane {

/**
 * Plain English questions that name the file, as it stands and untranslated. What the save flow uses when it is given
 * no other handler.
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

    /** Remembers the name for the texts of the other operations, and returns it. */
    std::string filenameToCheck(const std::string& filename) override;
    std::string okToOverwriteMessage() override;
    std::string unableToOverwriteMessage() override;
    std::string systemAccessError(const std::string& errorText) override;

private:
    std::string m_filename;
};

} // namespace morvane
