// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "CommandLinkForDesigner.h"

namespace morvane::ui {

CommandLinkForDesigner::CommandLinkForDesigner(QWidget* parent) : CorrectFontCommandLinkButton(parent) {}

CommandLinkForDesigner::~CommandLinkForDesigner() = default;

} // namespace morvane::ui

#define CorrectFontCommandLinkButton CommandLinkForDesigner
#include "moc_CommandLinkForDesigner.cpp"
