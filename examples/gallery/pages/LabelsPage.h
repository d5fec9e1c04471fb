// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

class ElidedTextLabel;
class QComboBox;
class QLabel;
class QLineEdit;
class QSplitter;

namespace morvane::ui {
class CorrectFontCommandLinkButton;
}

namespace gallery {

/** A label that keeps the end of a real path visible, and a command-link button that no layout shrinks. */
class LabelsPage : public Page
{
    Q_OBJECT

public:
    LabelsPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    QWidget* makePathRow();
    QWidget* makeButtonRow();

    QLineEdit* m_path;
    ElidedTextLabel* m_label;
    QComboBox* m_elideMode;
    QSplitter* m_splitter;
    morvane::ui::CorrectFontCommandLinkButton* m_button;
};

} // namespace gallery
