// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace gallery {

/** Registers the font files of a folder and shows their fonts. */
class FontsPage : public Page
{
    Q_OBJECT

public:
    FontsPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    void registerFonts();
    int previewNewFonts();

    QLineEdit* m_folder;
    QPushButton* m_register;
    QLabel* m_result;
    QListWidget* m_fonts;
    int m_nextFont = 0; // Qt's identifier of the next application font
};

} // namespace gallery
