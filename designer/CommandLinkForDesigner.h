// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

// Designer identifies a widget by the class name in its meta-object, and CorrectFontCommandLinkButton has no
// meta-object. This class has a meta-object with that class name: moc reads the declaration with the name
// CorrectFontCommandLinkButton, and CommandLinkForDesigner.cpp replaces this name in the generated code by the name of
// this class.
#ifdef Q_MOC_RUN
#define CommandLinkForDesigner CorrectFontCommandLinkButton
#define CommandLinkBase QCommandLinkButton
#else
#define CommandLinkBase CorrectFontCommandLinkButton
#endif

namespace morvane::ui {

class CommandLinkForDesigner : public CommandLinkBase
{
    Q_OBJECT

public:
    explicit CommandLinkForDesigner(QWidget* parent);
    ~CommandLinkForDesigner() override;
};

} // namespace morvane::ui

#undef CommandLinkBase
