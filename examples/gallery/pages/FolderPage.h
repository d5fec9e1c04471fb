// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/FacadePage.h"

namespace gallery {

/** Asks for a folder with ExtendedFileDialog. */
class FolderPage : public FacadePage
{
    Q_OBJECT

public:
    FolderPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

protected:
    QFileDialog::FileMode fileMode() const override { return QFileDialog::Directory; }
    void configure(ExtendedFileDialog& dialog) override;

private:
    std::vector<TourStep> dialogSteps(const TourWorkspace& workspace, bool native);
};

} // namespace gallery
