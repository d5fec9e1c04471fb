// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/HelpLauncher.h"

#include <functional>

namespace gallery {

/** Shows the help pages that are installed with the gallery, and reports the requested topic. */
class HelpPages : public morvane::HelpLauncher
{
public:
    HelpPages();

    void showHelp(const std::string& topic) override;

    /** Called with each topic before its page opens. */
    void setObserver(std::function<void(const std::string& topic)> observer);

private:
    std::function<void(const std::string&)> m_observer;
};

} // namespace gallery
