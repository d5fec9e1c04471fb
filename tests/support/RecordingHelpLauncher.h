// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/HelpLauncher.h"

#include <string>
#include <vector>

namespace morvane::test {

/** Records the topics instead of showing them, for use with morvane::InstanceOverride. */
class RecordingHelpLauncher : public HelpLauncher
{
public:
    void showHelp(const std::string& topic) override { topics.push_back(topic); }

    std::vector<std::string> topics;
};

} // namespace morvane::test
