// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QCheckBox;
class QSlider;

namespace morvane::ui {
class OverrideCursor;
class OverrideCursorRestorer;
class QtSignalConnectionCollection;
} // namespace morvane::ui

namespace gallery {

/**
 * Objects that act as long as they exist: cursor guards and the connection collection. The user creates and destroys
 * them.
 */
class GuardsPage : public Page
{
    Q_OBJECT

public:
    GuardsPage();
    ~GuardsPage() override;

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

protected:
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeCursorGroup();
    QWidget* makeConnectionGroup();
    void setWaiting(bool on);
    void setCross(bool on);
    void setSuspended(bool on);
    void setConnected(bool on);
    void showCursorState();

    // Declared in the order of their creation, because they form a stack.
    std::unique_ptr<morvane::ui::OverrideCursor> m_wait;
    std::unique_ptr<morvane::ui::OverrideCursor> m_cross;
    std::unique_ptr<morvane::ui::OverrideCursorRestorer> m_suspension;
    QPushButton* m_waitButton;
    QPushButton* m_crossButton;
    QPushButton* m_suspendButton;
    QLabel* m_cursorState;

    QCheckBox* m_connected;
    QSlider* m_slider;
    QProgressBar* m_bar;
    QLabel* m_number;
    std::unique_ptr<morvane::ui::QtSignalConnectionCollection> m_connections;
};

} // namespace gallery
