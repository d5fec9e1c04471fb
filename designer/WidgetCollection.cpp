// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "WidgetCollection.h"

#include "CommandLinkForDesigner.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "WidgetEntry.h"

namespace {

template <typename Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

WidgetDescription comboBox()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("morvane::ui::ComboBoxAutoFilter");
    widget.extends = QStringLiteral("QComboBox");
    widget.header = QStringLiteral("ui/qt/controls/ComboBoxAutoFilter.h");
    widget.icon = QStringLiteral("combobox");
    widget.toolTip = QStringLiteral("Filtering Combo Box");
    widget.whatsThis =
        QStringLiteral("A combo box that offers the entries that contain the typed text. With editMode "
                       "FormField it stays open for many edits; with SingleEdit it closes itself after one.");
    widget.size = QSize(160, 32);
    widget.properties = QStringLiteral("<property name=\"filtering\"><bool>true</bool></property>"
                                       "<property name=\"editMode\">"
                                       "<enum>morvane::ui::ComboBoxAutoFilter::FormField</enum></property>");
    widget.create = create<morvane::ui::ComboBoxAutoFilter>;
    return widget;
}

WidgetDescription scientificSpinBox()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("morvane::ui::QScientificSpinBox");
    widget.extends = QStringLiteral("QDoubleSpinBox");
    widget.header = QStringLiteral("ui/qt/controls/QScientificSpinBox.h");
    widget.icon = QStringLiteral("scientificspinbox");
    widget.toolTip = QStringLiteral("Scientific Spin Box");
    widget.whatsThis =
        QStringLiteral("A spin box for numbers such as 1.5E-07. Set its range, step and value as text: "
                       "minimumText, maximumText, singleStepText, valueText. With notation SiPrefix it shows "
                       "4.7 \u00b5V, with the unit as suffix. numberLocale, stepMode and refusalShown are off "
                       "initially.");
    widget.size = QSize(200, 32);
    widget.properties = QStringLiteral("<property name=\"ownValidation\"><bool>true</bool></property>");
    widget.create = create<morvane::ui::QScientificSpinBox>;
    return widget;
}

WidgetDescription integralSpinBox()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("morvane::ui::IntegralSpinBox");
    widget.extends = QStringLiteral("QSpinBox");
    widget.header = QStringLiteral("ui/qt/controls/IntegralSpinBox.h");
    widget.icon = QStringLiteral("integralspinbox");
    widget.toolTip = QStringLiteral("Integer Spin Box");
    widget.whatsThis = QStringLiteral("A spin box for integers. Slots connected to signalIncrement and "
                                      "signalDecrement replace its steps.");
    widget.size = QSize(100, 32);
    widget.create = create<morvane::ui::IntegralSpinBox>;
    return widget;
}

WidgetDescription elidedLabel()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("ElidedTextLabel");
    widget.extends = QStringLiteral("QFrame");
    widget.header = QStringLiteral("ui/qt/controls/ElidedTextLabel.h");
    widget.icon = QStringLiteral("elidedlabel");
    widget.toolTip = QStringLiteral("Elided Label");
    widget.whatsThis = QStringLiteral("A label for paths and other texts whose end is important. If the text does not "
                                      "fit, its start is elided, and the tool tip shows the whole text.");
    widget.size = QSize(160, 24);
    widget.properties = QStringLiteral("<property name=\"text\"><string>A text whose end matters</string></property>");
    widget.specifications =
        QStringLiteral("<stringpropertyspecification name=\"text\" notr=\"false\" type=\"singleline\"/>");
    widget.create = create<ElidedTextLabel>;
    return widget;
}

WidgetDescription commandLinkButton()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("morvane::ui::CorrectFontCommandLinkButton");
    widget.extends = QStringLiteral("QCommandLinkButton");
    widget.header = QStringLiteral("ui/qt/controls/CorrectFontCommandLinkButton.h");
    widget.icon = QStringLiteral("commandlink");
    widget.toolTip = QStringLiteral("Uncut Command Link");
    widget.whatsThis = QStringLiteral("A command link that no layout shrinks below the size of its texts.");
    widget.size = QSize(220, 60);
    widget.properties = QStringLiteral("<property name=\"text\"><string>Command link</string></property>"
                                       "<property name=\"description\"><string>What it does</string></property>");
    widget.create = create<morvane::ui::CommandLinkForDesigner>;
    return widget;
}

WidgetDescription integral64SpinBox()
{
    WidgetDescription widget;
    widget.className = QStringLiteral("morvane::ui::Integral64SpinBox");
    widget.extends = QStringLiteral("QAbstractSpinBox");
    widget.header = QStringLiteral("ui/qt/controls/Integral64SpinBox.h");
    widget.icon = QStringLiteral("integral64spinbox");
    widget.toolTip = QStringLiteral("64-bit Integer Spin Box");
    widget.whatsThis =
        QStringLiteral("A spin box for integers of 64 bits, in base 10, 16, 8 or 2, and in groups if there is "
                       "a groupSeparator. Slots connected to signalIncrement and signalDecrement replace its "
                       "steps.");
    widget.size = QSize(160, 32);
    widget.specifications = QStringLiteral("<stringpropertyspecification name=\"groupSeparator\" notr=\"true\" "
                                           "type=\"singleline\"/>");
    widget.create = create<morvane::ui::Integral64SpinBox>;
    return widget;
}

} // namespace

WidgetCollection::WidgetCollection()
{
    for (const auto& describe :
        {comboBox, scientificSpinBox, integralSpinBox, elidedLabel, commandLinkButton, integral64SpinBox}) {
        m_widgets.append(new WidgetEntry(describe(), this));
    }
}

WidgetCollection::~WidgetCollection() = default;
