// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <QString>

#include <memory>
#include <string>

namespace morvane {

/**
 * The host's service that shows help for a topic. The Help button of a dialog that has a help topic calls it.
 *
 * A host can replace the service for the whole process: with a subclass and setInstance() (or InstanceOverride), or at
 * link time with its own library. GUI thread only.
 *
 * @snippet 22-host-services/main.cpp help
 */
class MORVANE_HOST_EXPORT HelpLauncher
{
public:
    /**
     * Shows the help for @p topic, which is UTF-8.
     *
     * This default implementation opens the page `<help directory>/<topic>.html` with the desktop's browser. A topic
     * may name a page in a sub-directory (`dialogs/open`). If the page does not exist, or the browser cannot be
     * started, a message box names the topic. A topic must not lead out of the help directory, by `..`, as an absolute
     * path or through a symbolic link. Such a topic is treated like a page that does not exist.
     */
    virtual void showHelp(const std::string& topic);

    HelpLauncher();
    virtual ~HelpLauncher();
    HelpLauncher(const HelpLauncher&) = delete;
    HelpLauncher& operator=(const HelpLauncher&) = delete;

    /**
     * Returns the replacement that was given to setInstance(). Without one, returns a default object, created on first
     * use.
     */
    static HelpLauncher& getInstance();
    /**
     * Makes @p replacement the object that getInstance() returns. Null restores the default object.
     * @return the previous replacement; null if there was none. The caller keeps the ownership of both.
     */
    static HelpLauncher* setInstance(HelpLauncher* replacement);

    /**
     * The directory in which the default implementation looks for pages. Empty, the initial value, means that there are
     * none.
     */
    QString helpDirectory() const;
    /** @param directory an existing directory; empty: there are no pages */
    void setHelpDirectory(const QString& directory);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane
