// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QCommandLinkButton>

namespace morvane::ui {

/**
 * A command-link button whose minimum size is its preferred size. So a layout never shrinks it, and the title and the
 * description stay readable in the current font. If the layout has too little space, its contents overflow.
 *
 * @snippet 11-command-links/main.cpp buttons
 */
class MORVANE_UI_EXPORT CorrectFontCommandLinkButton : public QCommandLinkButton
{
public:
    /** @param parent owner; null: a top-level window that the caller deletes */
    explicit CorrectFontCommandLinkButton(QWidget* parent = nullptr);
    ~CorrectFontCommandLinkButton() override;

    /** Returns the preferred size, sizeHint(). */
    QSize minimumSizeHint() const override;
};

} // namespace morvane::ui
