// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/AcceptMenu_p.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>

#include <utility>

namespace morvane::ui {

namespace {

constexpr int arrowWidth = 22;

} // namespace

AcceptMenu::AcceptMenu(
    QAbstractButton& acceptButton, std::function<void(DWORD item)> picked, std::function<void()> opening)
    : QToolButton(&acceptButton), m_acceptButton(acceptButton), m_picked(std::move(picked)), m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("acceptMenuArrow"));
    setAccessibleName(QCoreApplication::translate("ExtendedWinFileDialog", "More ways to accept"));
    setPopupMode(QToolButton::InstantPopup);
    setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, [this, opening = std::move(opening)] {
        opening();
        if (!isVisible()) {
            // The dialog was closed. The menu cannot be prevented from opening now, so it is closed afterwards.
            QMetaObject::invokeMethod(m_menu, &QWidget::close, Qt::QueuedConnection);
        }
    });
    m_menu->installEventFilter(this);
    acceptButton.installEventFilter(this);
}

AcceptMenu::~AcceptMenu() = default;

void AcceptMenu::update(const Control& dropDown)
{
    // A signal of an action may have caused this call, so the actions are deleted later.
    for (QAction* const action : m_menu->actions()) {
        m_menu->removeAction(action);
        action->deleteLater();
    }
    bool any = false;
    for (const ControlItem& item : dropDown.items) {
        addItem(item);
        any = any || (item.state & CDCS_VISIBLE) != 0;
    }
    setEnabled(dropDown.isEnabled());
    setVisible(any && dropDown.isVisible());
    // Space on both sides keeps the text of the button centred.
    m_acceptButton.setMinimumWidth(isHidden() ? 0 : m_acceptButton.sizeHint().width() + 2 * arrowWidth);
    fitToButton();
}

bool AcceptMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_menu) {
        return filterMenu(*event);
    }
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange) {
        fitToButton();
    }
    return QToolButton::eventFilter(watched, event);
}

bool AcceptMenu::filterMenu(QEvent& event)
{
    if (event.type() == QEvent::Show) {
        placeMenu();
        return false;
    }
    if (m_isResending || (event.type() != QEvent::MouseButtonRelease && event.type() != QEvent::KeyPress)) {
        return false;
    }
    // QMenu accesses its members after it has triggered an action. So the pick is reported after QMenu has returned.
    m_isResending = true;
    QCoreApplication::sendEvent(m_menu, &event);
    m_isResending = false;
    if (const auto item = std::exchange(m_due, std::nullopt)) {
        event.accept();
        m_picked(*item); // may end the dialog
    }
    return true;
}

void AcceptMenu::onTriggered(DWORD item)
{
    if (m_isResending) {
        m_due = item;
    } else {
        m_picked(item);
    }
}

void AcceptMenu::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption arrow;
    arrow.initFrom(this);
    const QColor line = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Mid);
    const int lineX = isRightToLeft() ? width() - 1 : 0;
    painter.setPen(line);
    painter.drawLine(lineX, 4, lineX, height() - 5);
    if (underMouse() || isDown() || hasFocus()) {
        QColor wash = palette().color(QPalette::Highlight);
        wash.setAlpha(isDown() ? 90 : 45);
        painter.fillRect(rect().adjusted(2, 3, -3, -3), wash);
    }
    arrow.rect = QRect(0, 0, 12, 12);
    arrow.rect.moveCenter(rect().center());
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
}

void AcceptMenu::addItem(const ControlItem& item)
{
    QAction* const action = m_menu->addAction(item.label);
    action->setEnabled((item.state & CDCS_ENABLED) != 0);
    action->setVisible((item.state & CDCS_VISIBLE) != 0);
    connect(action, &QAction::triggered, this, [this, id = item.id] { onTriggered(id); });
}

void AcceptMenu::fitToButton()
{
    const int x = m_acceptButton.isRightToLeft() ? 0 : m_acceptButton.width() - arrowWidth;
    setGeometry(x, 0, arrowWidth, m_acceptButton.height());
}

void AcceptMenu::placeMenu()
{
    const QRect button(m_acceptButton.mapToGlobal(QPoint(0, 0)), m_acceptButton.size());
    const QScreen* const screen = m_acceptButton.screen();
    const QRect room = screen ? screen->availableGeometry() : QRect();
    QRect menu(QPoint(), m_menu->size());
    menu.moveBottomRight(button.topRight() - QPoint(0, 1));
    if (m_acceptButton.isRightToLeft()) {
        menu.moveLeft(button.left());
    }
    if (screen && menu.top() < room.top()) {
        // There is no room above. Beside the button the menu covers no other button.
        menu.moveTop(button.top());
        menu.moveLeft(button.right() + menu.width() < room.right() ? button.right() + 1 : button.left() - menu.width());
    }
    m_menu->move(menu.topLeft());
}

} // namespace morvane::ui
