// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

#include "ui/qt/util/GuiThread_p.h"

namespace morvane::ui {

CorrectFontCommandLinkButton::CorrectFontCommandLinkButton(QWidget* parent) : QCommandLinkButton(parent)
{
    expectGuiThread("CorrectFontCommandLinkButton");
}

CorrectFontCommandLinkButton::~CorrectFontCommandLinkButton() = default;

QSize CorrectFontCommandLinkButton::minimumSizeHint() const
{
    return sizeHint();
}

} // namespace morvane::ui
