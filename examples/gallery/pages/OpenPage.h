// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/FacadePage.h"

class QCheckBox;

namespace gallery {

/** Asks for one or several files with ExtendedFileDialog and with LaunchFileDialog(). */
class OpenPage : public FacadePage
{
    Q_OBJECT

public:
    OpenPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

protected:
    QFileDialog::FileMode fileMode() const override;

private:
    std::vector<TourStep> optionSteps(const TourWorkspace& workspace);
    std::vector<TourStep> dialogSteps(const TourWorkspace& workspace, bool native);
    std::vector<TourStep> oneFileSteps(const TourWorkspace& workspace);
    std::vector<TourStep> severalFilesSteps(const TourWorkspace& workspace);
    std::vector<TourStep> oneCallSteps(const TourWorkspace& workspace);

    QCheckBox* m_several;
};

} // namespace gallery
