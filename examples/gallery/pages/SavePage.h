// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/FacadePage.h"

class QCheckBox;

namespace gallery {

/** Asks for a file name for saving with ExtendedFileDialog and with LaunchFileDialog(). Writes nothing. */
class SavePage : public FacadePage
{
    Q_OBJECT

public:
    SavePage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

protected:
    QFileDialog::FileMode fileMode() const override { return QFileDialog::AnyFile; }
    void configure(ExtendedFileDialog& dialog) override;

private:
    void forgetFolder();
    std::vector<TourStep> dialogSteps(const TourWorkspace& workspace, bool native);
    std::vector<TourStep> questionSteps(const TourWorkspace& workspace);
    std::vector<TourStep> oneCallSteps();
    std::vector<TourStep> memorySteps();

    QCheckBox* m_ask;
    QCheckBox* m_remember;
};

} // namespace gallery
