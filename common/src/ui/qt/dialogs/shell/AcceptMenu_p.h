// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/dialogs/shell/Control_p.h"

#include <QToolButton>

#include <optional>

class QAbstractButton;
class QMenu;

namespace morvane::ui {

/**
 * The arrow at the end of the accept button, and its menu with the items of the drop-down. The arrow is hidden while
 * there is no item to choose. The rest of the button works as before. The menu opens above the button, because other
 * buttons of the dialog are below it.
 */
class AcceptMenu : public QToolButton
{
public:
    AcceptMenu(QAbstractButton& acceptButton, std::function<void(DWORD item)> picked, std::function<void()> opening);
    ~AcceptMenu() override;

    void update(const Control& dropDown);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addItem(const ControlItem& item);
    bool filterMenu(QEvent& event);
    void onTriggered(DWORD item);
    void fitToButton();
    void placeMenu();

    QAbstractButton& m_acceptButton;
    const std::function<void(DWORD)> m_picked;
    QMenu* m_menu;
    bool m_isResending = false;
    std::optional<DWORD> m_due; ///< picked, but not reported yet
};

} // namespace morvane::ui
