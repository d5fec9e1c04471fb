// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ControlStrip_p.h"

#include "ui/qt/dialogs/shell/AcceptMenu_p.h"
#include "ui/qt/dialogs/shell/FileDialogWindow_p.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace morvane::ui {

namespace {

constexpr int controlsPerRow = 4;

} // namespace

ControlStrip::ControlStrip(FileDialogWindow& dialog, ControlActions actions)
    : QObject(&dialog),
      m_dialog(dialog),
      m_actions(std::move(actions)),
      m_buttonBox(dialog.findChild<QDialogButtonBox*>()),
      m_row(new QWidget(&dialog)),
      m_rowLayout(new QGridLayout(m_row))
{
    m_row->setObjectName(QStringLiteral("customControls"));
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setColumnStretch(controlsPerRow, 1);
    if (auto* const grid = qobject_cast<QGridLayout*>(dialog.layout())) {
        grid->addWidget(m_row, grid->rowCount(), 0, 1, grid->columnCount());
    }
}

ControlStrip::~ControlStrip() = default;

void ControlStrip::update(const std::vector<Control>& controls)
{
    bool anyInRow = false;
    for (const Control& control : controls) {
        if (control.kind == Control::Kind::AcceptDropDown) {
            updateAcceptMenu(control);
            continue;
        }
        QAbstractButton* const button = buttonFor(control);
        const QSignalBlocker blocker(button);
        place(control, *button);
        button->setText(control.label);
        button->setChecked(control.checked);
        button->setEnabled(control.isEnabled());
        button->setVisible(control.isVisible());
        anyInRow = anyInRow || (control.isVisible() && button->parentWidget() == m_row);
    }
    m_row->setVisible(anyInRow);
    // The button box sets the tab order of its buttons again when a button is added.
    if (m_acceptMenu) {
        QWidget::setTabOrder(m_acceptMenu->parentWidget(), m_acceptMenu);
    }
}

QAbstractButton* ControlStrip::buttonFor(const Control& control)
{
    QAbstractButton*& button = m_buttons[control.id];
    if (button) {
        return button;
    }
    const DWORD id = control.id;
    if (control.kind == Control::Kind::CheckButton) {
        button = new QCheckBox(m_row);
        // toggled() is not used: Qt accesses the button after that signal, and a callback may destroy the dialog.
        connect(button, &QAbstractButton::clicked, this, [this, id](bool checked) { m_actions.toggled(id, checked); });
    } else {
        button = new QPushButton(m_row);
        connect(button, &QAbstractButton::clicked, this, [this, id] { m_actions.clicked(id); });
    }
    button->setObjectName(QStringLiteral("customControl%1").arg(id));
    addToRow(*button);
    return button;
}

void ControlStrip::addToRow(QAbstractButton& button)
{
    // When a button becomes prominent, its cell becomes empty.
    int position = 0;
    while (m_rowLayout->itemAtPosition(position / controlsPerRow, position % controlsPerRow)) {
        ++position;
    }
    m_rowLayout->addWidget(&button, position / controlsPerRow, position % controlsPerRow);
}

void ControlStrip::place(const Control& control, QAbstractButton& button)
{
    const bool standsApart = control.prominent && control.kind == Control::Kind::PushButton;
    if (standsApart && button.parentWidget() == m_row) {
        m_buttonBox->addButton(&button, QDialogButtonBox::HelpRole);
    } else if (!standsApart && button.parentWidget() != m_row) {
        m_buttonBox->removeButton(&button);
        addToRow(button);
    }
}

void ControlStrip::updateAcceptMenu(const Control& control)
{
    if (!m_acceptMenu) {
        const auto buttons = m_buttonBox->buttons();
        const auto accept = std::find_if(buttons.begin(), buttons.end(), [this](QAbstractButton* button) {
            return m_buttonBox->buttonRole(button) == QDialogButtonBox::AcceptRole;
        });
        const DWORD id = control.id;
        const auto picked = [this, id](DWORD item) { m_actions.itemPicked(id, item); };
        const auto opening = [this, id] { m_actions.activating(id); };
        m_acceptMenu = new AcceptMenu(**accept, picked, opening);
    }
    const ControlItem* const first = control.isVisible() ? control.firstChoice() : nullptr;
    m_dialog.setOptionText(first ? first->label : QString());
    m_acceptMenu->update(control);
}

} // namespace morvane::ui
