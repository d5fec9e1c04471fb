// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ValidationResult.h"

#include <QStringList>

#include <boost/function.hpp>

#include <string>

namespace morvane::ui {

class NativeControls;

/** Called with the chosen paths when the user accepts. */
using AcceptanceCheck = boost::function<ValidationResult(const QStringList& paths)>;

/** A dialog to which a host can add something. Texts are UTF-8. */
class CustomizationTarget
{
public:
    virtual ~CustomizationTarget() = default;

    virtual NativeControls& controls() = 0;
    virtual void setAcceptanceCheck(AcceptanceCheck check) = 0;
    virtual void setAcceptButtonText(const std::string& text) = 0;
    virtual void setFileNameLabel(const std::string& label) = 0;
    virtual void addPlace(const std::string& folder, bool atTop) = 0;
    virtual void setMemoryKey(const std::string& key) = 0;
    virtual void clearMemory() = 0;
};

} // namespace morvane::ui
