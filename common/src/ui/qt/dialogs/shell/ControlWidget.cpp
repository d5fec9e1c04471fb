// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ControlWidget_p.h"

#include "ui/qt/dialogs/shell/ControlFlow_p.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <map>

namespace morvane::ui {

namespace {

/** The text as it is shown where no key can be pressed for it: without the & of the mnemonic, and && as &. */
QString withoutMnemonic(const QString& label)
{
    QString text;
    for (int i = 0; i < label.size(); ++i) {
        if (label[i] == QLatin1Char('&') && ++i == label.size()) {
            break;
        }
        text += label[i];
    }
    return text;
}

/** The label as a screen reader speaks it. */
QString spokenName(const Control* label)
{
    QString name = label ? withoutMnemonic(label->label).trimmed() : QString();
    while (name.endsWith(QLatin1Char(':'))) {
        name.chop(1);
    }
    return name;
}

QVariant dataOf(DWORD item)
{
    return QVariant(static_cast<uint>(item));
}

QString shownLabel(const Control* label)
{
    return label && label->isVisible() ? label->label : QString();
}

class ButtonControl final : public ControlWidget
{
public:
    explicit ButtonControl(QAbstractButton& button) : ControlWidget(button), m_button(button) {}

    QAbstractButton* button() override { return &m_button; }

private:
    void show(const Control& control, const Control*) override
    {
        m_button.setText(control.label);
        m_button.setChecked(control.checked);
    }

    QAbstractButton& m_button;
};

/** A label and an input widget side by side. The parent of the input widget is the cell of both. */
class LabelledControl : public ControlWidget
{
protected:
    explicit LabelledControl(QWidget& input)
        : ControlWidget(*input.parentWidget()), m_input(input), m_label(new QLabel(&cell()))
    {
        auto* const layout = new QHBoxLayout(&cell());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_label);
        layout->addWidget(&input, 1);
        m_label->setTextFormat(Qt::PlainText);
        m_label->setBuddy(&input);
    }

    void show(const Control& control, const Control* label) override
    {
        const QString text = shownLabel(label);
        m_label->setText(text);
        m_label->setVisible(!text.isEmpty());
        m_label->setEnabled(!label || label->isEnabled());
        m_input.setAccessibleName(spokenName(label));
        showInput(control);
    }
    virtual void showInput(const Control& control) = 0;

private:
    QWidget& m_input;
    QLabel* m_label;
};

/**
 * A combo box with room for a number of characters.
 *
 * QComboBox::setMinimumContentsLength() does that, too, but it makes the list of the box at once. Most lists are never
 * opened.
 */
class SizedComboBox final : public QComboBox
{
public:
    explicit SizedComboBox(QWidget* parent) : QComboBox(parent) {}

    void setShownCharacters(int characters)
    {
        m_characters = characters;
        updateGeometry();
    }

    QSize sizeHint() const override
    {
        constexpr int leastHeight = 14; // as QComboBox has it
        const QFontMetrics metrics = fontMetrics();
        const QSize text(m_characters * metrics.horizontalAdvance(QLatin1Char('X')),
            std::max(static_cast<int>(std::ceil(QFontMetricsF(font()).height())), leastHeight) + 2);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int m_characters = 0;
};

class ComboBoxControl final : public LabelledControl
{
public:
    ComboBoxControl(SizedComboBox& box, const Control& control, const ControlActions& actions)
        : LabelledControl(box), m_box(box)
    {
        m_box.setObjectName(QStringLiteral("customControl%1").arg(control.id));
        QObject::connect(&m_box, QOverload<int>::of(&QComboBox::activated), &m_box,
            [&actions, &box, id = control.id](int row) { actions.itemSelected(id, box.itemData(row).toUInt()); });
    }

private:
    void showInput(const Control& control) override
    {
        std::vector<ControlItem> visible;
        std::copy_if(control.items.begin(), control.items.end(), std::back_inserter(visible),
            [](const ControlItem& item) { return (item.state & CDCS_VISIBLE) != 0; });
        if (!(visible == m_shown)) {
            fill(visible);
        }
        m_box.setCurrentIndex(control.selectedItem ? m_box.findData(dataOf(*control.selectedItem)) : -1);
    }

    void fill(std::vector<ControlItem>& items)
    {
        constexpr int shortest = 5;
        constexpr int longest = 30;
        int length = shortest;
        m_box.clear();
        for (const ControlItem& item : items) {
            m_box.addItem(item.label, dataOf(item.id));
            length = std::max(length, static_cast<int>(item.label.size()));
        }
        auto* const model = qobject_cast<QStandardItemModel*>(m_box.model());
        for (int row = 0; row < m_box.count(); ++row) {
            model->item(row)->setEnabled((items[static_cast<std::size_t>(row)].state & CDCS_ENABLED) != 0);
        }
        m_box.setShownCharacters(std::min(length, longest));
        m_shown.swap(items);
    }

    SizedComboBox& m_box;
    std::vector<ControlItem> m_shown;
};

class EditBoxControl final : public LabelledControl
{
public:
    EditBoxControl(QLineEdit& edit, const Control& control, const ControlActions& actions)
        : LabelledControl(edit), m_edit(edit)
    {
        constexpr int shownCharacters = 24;
        m_edit.setObjectName(QStringLiteral("customControl%1").arg(control.id));
        m_edit.setMinimumWidth(m_edit.fontMetrics().averageCharWidth() * shownCharacters);
        QObject::connect(&m_edit, &QLineEdit::textChanged, &m_edit,
            [&actions, id = control.id](const QString& text) { actions.edited(id, text); });
    }

private:
    void showInput(const Control& control) override
    {
        if (m_edit.text() != control.label) { // setText() moves the cursor
            m_edit.setText(control.label);
        }
    }

    QLineEdit& m_edit;
};

class RadioListControl final : public ControlWidget
{
public:
    /** @param box a QGroupBox if the list has a label */
    RadioListControl(QWidget& box, const Control& control, const ControlActions& actions)
        : ControlWidget(box),
          m_box(qobject_cast<QGroupBox*>(&box)),
          m_control(control.id),
          m_actions(actions),
          m_group(new QButtonGroup(&box)),
          m_layout(new QVBoxLayout(&box))
    {
        box.setObjectName(QStringLiteral("customControl%1").arg(control.id));
        if (!m_box) {
            m_layout->setContentsMargins(0, 0, 0, 0);
        }
    }

private:
    void show(const Control& control, const Control* label) override
    {
        if (m_box) {
            m_box->setTitle(shownLabel(label));
            m_box->setAccessibleName(spokenName(label));
        }
        removeOthers(control);
        m_group->setExclusive(false); // none may be selected
        for (const ControlItem& item : control.items) {
            QRadioButton& button = buttonFor(item.id);
            const QSignalBlocker blocker(button);
            button.setText(item.label);
            button.setEnabled((item.state & CDCS_ENABLED) != 0);
            button.setVisible((item.state & CDCS_VISIBLE) != 0);
            button.setChecked(control.selectedItem == item.id);
        }
        m_group->setExclusive(true);
        letTabReachOne();
    }

    /** The Tab key stops at the selected button, from which the arrow keys lead on. If there is none, at each. */
    void letTabReachOne()
    {
        const QAbstractButton* const selected = m_group->checkedButton();
        const bool isReachable = selected && selected->isEnabled() && !selected->isHidden();
        for (const auto& entry : m_buttons) {
            entry.second->setFocusPolicy(isReachable && entry.second != selected ? Qt::ClickFocus : Qt::StrongFocus);
        }
    }

    void removeOthers(const Control& control)
    {
        std::map<DWORD, QRadioButton*> kept;
        for (const ControlItem& item : control.items) {
            const auto found = m_buttons.find(item.id);
            if (found != m_buttons.end()) {
                kept.insert(*found);
                m_buttons.erase(found);
            }
        }
        for (const auto& gone : m_buttons) {
            // A signal of the button may have caused this call, so it is deleted later.
            gone.second->hide();
            m_group->removeButton(gone.second);
            gone.second->deleteLater();
        }
        m_buttons.swap(kept);
    }

    QRadioButton& buttonFor(DWORD item)
    {
        QRadioButton*& button = m_buttons[item];
        if (!button) {
            button = new QRadioButton(&cell());
            m_group->addButton(button);
            m_layout->addWidget(button);
            QObject::connect(button, &QAbstractButton::clicked, button,
                [&actions = m_actions, id = m_control, item] { actions.itemSelected(id, item); });
        }
        return *button;
    }

    QGroupBox* m_box;
    const DWORD m_control;
    const ControlActions& m_actions;
    QButtonGroup* m_group;
    QVBoxLayout* m_layout;
    std::map<DWORD, QRadioButton*> m_buttons;
};

class TextControl final : public ControlWidget
{
public:
    explicit TextControl(QLabel& label) : ControlWidget(label), m_label(label)
    {
        m_label.setTextFormat(Qt::PlainText);
        m_label.setWordWrap(true);
    }

    bool takesWholeLine() const override { return true; }

private:
    void show(const Control& control, const Control*) override { m_label.setText(withoutMnemonic(control.label)); }

    QLabel& m_label;
};

class SeparatorControl final : public ControlWidget
{
public:
    explicit SeparatorControl(QFrame& line) : ControlWidget(line)
    {
        line.setFrameShape(QFrame::HLine);
        line.setFrameShadow(QFrame::Sunken);
    }

    bool takesWholeLine() const override { return true; }

private:
    void show(const Control&, const Control*) override {}
};

class GroupControl final : public ControlWidget
{
public:
    explicit GroupControl(QGroupBox& box) : ControlWidget(box), m_box(box), m_members(new ControlFlow(&box)) {}

    bool takesWholeLine() const override { return true; }
    ControlFlow* members() override { return m_members; }

private:
    void show(const Control& control, const Control*) override { m_box.setTitle(control.label); }

    QGroupBox& m_box;
    ControlFlow* m_members;
};

template <typename Widget>
Widget& named(Widget* widget, const Control& control)
{
    widget->setObjectName(QStringLiteral("customControl%1").arg(control.id));
    return *widget;
}

std::unique_ptr<ControlWidget> makeButton(const Control& control, const ControlActions& actions, QWidget& parent)
{
    const DWORD id = control.id;
    if (control.kind == Control::Kind::CheckButton) {
        auto& box = named(new QCheckBox(&parent), control);
        // toggled() is not used: Qt accesses the button after that signal, and a callback may destroy the dialog.
        QObject::connect(
            &box, &QAbstractButton::clicked, &box, [&actions, id](bool checked) { actions.toggled(id, checked); });
        return std::make_unique<ButtonControl>(box);
    }
    auto& button = named(new QPushButton(&parent), control);
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&actions, id] { actions.clicked(id); });
    return std::make_unique<ButtonControl>(button);
}

} // namespace

ControlWidget::~ControlWidget() = default;

void ControlWidget::update(const Control& control, const Control* label)
{
    const QSignalBlocker blocker(m_cell);
    show(control, label);
    // A group that only labels this control has no widget of its own.
    const bool ownsGroup = label && label->kind == Control::Kind::VisualGroup;
    m_cell.setEnabled(control.isEnabled() && (!ownsGroup || label->isEnabled()));
    m_cell.setVisible(control.isVisible() && (!ownsGroup || label->isVisible()));
}

std::unique_ptr<ControlWidget> makeControlWidget(
    const Control& control, const Control* label, const ControlActions& actions, QWidget& parent)
{
    switch (control.kind) {
    case Control::Kind::ComboBox:
        return std::make_unique<ComboBoxControl>(*new SizedComboBox(new QWidget(&parent)), control, actions);
    case Control::Kind::EditBox:
        return std::make_unique<EditBoxControl>(*new QLineEdit(new QWidget(&parent)), control, actions);
    case Control::Kind::RadioButtonList:
        return std::make_unique<RadioListControl>(
            label ? *new QGroupBox(&parent) : *new QWidget(&parent), control, actions);
    case Control::Kind::Text:
        return std::make_unique<TextControl>(named(new QLabel(&parent), control));
    case Control::Kind::Separator:
        return std::make_unique<SeparatorControl>(named(new QFrame(&parent), control));
    case Control::Kind::VisualGroup:
        return std::make_unique<GroupControl>(named(new QGroupBox(&parent), control));
    default:
        return makeButton(control, actions, parent);
    }
}

} // namespace morvane::ui
