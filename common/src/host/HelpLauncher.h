#pragma once

#include "host/MorvaneHostExport.h"

#include <QString>

#include <string>

namespace morvane {

/**
 * The host's way of showing help for a topic. Dialogs that were given a help topic call it from their Help button.
 *
 * A host replaces the service for the whole process by a subclass and setInstance() (or InstanceOverride), or at link
 * time by a library of its own. GUI thread only.
 *
 * @snippet 22-host-services/main.cpp help
 */
class MORVANE_HOST_EXPORT HelpLauncher
{
public:
    /**
     * Shows the help for @p topic, UTF-8.
     *
     * This default opens the page `<help directory>/<topic>.html` with the desktop's browser. A topic may name a page
     * in a sub-directory (`dialogs/open`). When there is no such page, or the browser cannot be started, a message box
     * names the topic. A topic that would lead out of the help directory, by `..`, as an absolute path or through a
     * symbolic link, opens nothing and is treated as a page that is not there.
     */
    virtual void showHelp(const std::string& topic);

    HelpLauncher();
    virtual ~HelpLauncher();
    HelpLauncher(const HelpLauncher&) = delete;
    HelpLauncher& operator=(const HelpLauncher&) = delete;

    /** The replacement given to setInstance(), or else a default object made on first use. */
    static HelpLauncher& getInstance();
    /**
     * Makes @p replacement the object that getInstance() returns; null brings the default object back.
     * @return the previous replacement, null when there was none. Ownership stays with the caller.
     */
    static HelpLauncher* setInstance(HelpLauncher* replacement);

    /** Where the default implementation looks for pages; empty (the initial value) means that there are none. */
    QString helpDirectory() const;
    /** @param directory an existing directory; empty for none */
    void setHelpDirectory(const QString& directory);

private:
    QString m_helpDirectory;
};

} // namespace morvane
