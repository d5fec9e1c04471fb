// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ControlStrip_p.h"

#include "ui/qt/dialogs/shell/AcceptMenu_p.h"
#include "ui/qt/dialogs/shell/ControlFlow_p.h"
#include "ui/qt/util/WheelGuard.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <set>

namespace morvane::ui {

/** Found in one pass over the controls. */
struct ControlStrip::Labels
{
    explicit Labels(const std::vector<Control>& controls)
    {
        std::map<DWORD, std::vector<const Control*>> members;
        std::map<DWORD, const Control*> groups;
        const Control* before = nullptr;
        for (const Control& control : controls) {
            if (control.kind == Control::Kind::VisualGroup) {
                groups[control.id] = &control;
            }
            if (control.group) {
                members[*control.group].push_back(&control);
            }
            if (before && before->kind == Control::Kind::Text && before->group == control.group &&
                control.takesLabel()) {
                add(*before, control);
            }
            before = &control;
        }
        for (const auto& [group, inside] : members) {
            if (inside.size() == 1 && inside.front()->takesLabel()) {
                add(*groups.at(group), *inside.front());
            }
        }
    }

    void add(const Control& label, const Control& labelled)
    {
        labels.insert(label.id);
        labelOf[labelled.id] = &label;
    }
    const Control* of(const Control& control) const
    {
        const auto found = labelOf.find(control.id);
        return found == labelOf.end() ? nullptr : found->second;
    }

    std::set<DWORD> labels;
    std::map<DWORD, const Control*> labelOf;
};

ControlStrip::ControlStrip(QFileDialog& dialog, ControlActions actions)
    : QObject(&dialog),
      m_dialog(dialog),
      m_actions(std::move(actions)),
      m_buttonBox(dialog.findChild<QDialogButtonBox*>()),
      m_row(new QWidget),
      m_flow(new ControlFlow(m_row)),
      m_scroller(new ControlScroller(m_row, &dialog))
{
    m_row->setObjectName(QStringLiteral("customControls"));
    m_flow->setContentsMargins(0, 0, 0, 0);
    guardWheel(*m_row); // the wheel scrolls the controls
    if (auto* const grid = qobject_cast<QGridLayout*>(dialog.layout())) {
        grid->addWidget(m_scroller, grid->rowCount(), 0, 1, grid->columnCount());
    }
}

ControlStrip::~ControlStrip()
{
    delete m_scroller; // unless the dialog has done it
}

void ControlStrip::update(const std::vector<Control>& controls)
{
    const Labels labels(controls);
    bool anyInRow = false;
    for (const Control& control : controls) {
        if (control.kind == Control::Kind::AcceptDropDown) {
            updateAcceptMenu(control);
            continue;
        }
        if (labels.labels.count(control.id) != 0) {
            hide(control); // it may have had a widget before it became a label
            continue;
        }
        ControlWidget& widget = widgetFor(control, labels);
        place(control, labels, widget);
        widget.update(control, labels.of(control));
        anyInRow = anyInRow || (!widget.cell().isHidden() && m_row->isAncestorOf(&widget.cell()));
    }
    m_scroller->setVisible(anyInRow);
    // The button box sets the tab order of its buttons again when a button is added.
    if (m_acceptMenu) {
        QWidget::setTabOrder(m_acceptMenu->parentWidget(), m_acceptMenu);
    }
}

void ControlStrip::makeRoom()
{
    const QPushButton line(QStringLiteral("x"));
    const int needed = m_scroller->isHidden() ? 0 : m_scroller->heightForWidth(m_dialog.width());
    const int more = needed - line.sizeHint().height();
    const QScreen* const screen = m_dialog.screen();
    const int highest = screen ? screen->availableGeometry().height() : m_dialog.height();
    if (more > 0 && m_dialog.height() < highest) {
        m_dialog.resize(m_dialog.width(), std::min(m_dialog.height() + more, highest));
    }
}

void ControlStrip::hide(const Control& control)
{
    const auto found = m_widgets.find(control.id);
    if (found != m_widgets.end()) {
        found->second->cell().hide();
    }
}

ControlWidget& ControlStrip::widgetFor(const Control& control, const Labels& labels)
{
    std::unique_ptr<ControlWidget>& widget = m_widgets[control.id];
    if (!widget) {
        ControlFlow& flow = flowFor(control, labels);
        widget = makeControlWidget(control, labels.of(control), m_actions, *flow.parentWidget());
        flow.addCell(widget->cell(), widget->takesWholeLine());
    }
    return *widget;
}

ControlFlow& ControlStrip::flowFor(const Control& control, const Labels& labels)
{
    const bool isFramed = control.group && labels.labels.count(*control.group) == 0;
    return isFramed ? *m_widgets.at(*control.group)->members() : *m_flow;
}

void ControlStrip::place(const Control& control, const Labels& labels, ControlWidget& widget)
{
    const bool standsApart = control.prominent && control.kind == Control::Kind::PushButton;
    const bool isApart = m_buttonBox->isAncestorOf(&widget.cell());
    if (standsApart && !isApart) {
        m_buttonBox->addButton(widget.button(), QDialogButtonBox::HelpRole);
    } else if (!standsApart && isApart) {
        m_buttonBox->removeButton(widget.button());
        flowFor(control, labels).addCell(widget.cell(), widget.takesWholeLine());
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
    m_actions.optionTextChanged(first ? first->label : QString());
    m_acceptMenu->update(control);
}

} // namespace morvane::ui
