// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/LabelsPage.h"

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace gallery {

LabelsPage::LabelsPage()
    : Page(QStringLiteral("labels"), tr("Labels and links"),
          tr("Drag the handle: the label elides the start of its path, and its tool tip then shows the whole path. "
             "Ctrl+C in the label copies the whole path. The button below has too little space, but keeps its size.")),
      m_path(new QLineEdit(QDir::toNativeSeparators(QCoreApplication::applicationFilePath()))),
      m_label(new ElidedTextLabel),
      m_elideMode(new QComboBox),
      m_splitter(new QSplitter(Qt::Horizontal)),
      m_button(new morvane::ui::CorrectFontCommandLinkButton)
{
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Path:"), m_path);
    form->addRow(tr("Elided:"), makePathRow());
    form->addRow(tr("&Ellipsis:"), m_elideMode);
    form->addRow(tr("Too narrow:"), makeButtonRow());
    body().addLayout(form);
    body().addStretch(1);

    m_elideMode->addItems({tr("At the start"), tr("At the end"), tr("In the middle"), tr("None")});
    connect(m_elideMode, QOverload<int>::of(&QComboBox::currentIndexChanged), m_label,
        [this](int mode) { m_label->setElideMode(static_cast<Qt::TextElideMode>(mode)); });
    connect(m_path, &QLineEdit::textChanged, m_label, &ElidedTextLabel::setText);
    connect(m_label, &ElidedTextLabel::clicked, this, [this] { Q_EMIT reported(tr("The label was clicked.")); });
    connect(m_button, &QAbstractButton::clicked, this, [this] { Q_EMIT reported(tr("The button was clicked.")); });
}

QWidget* LabelsPage::makePathRow()
{
    m_label->setText(m_path->text());
    m_label->setAccessibleName(tr("Elided path"));
    m_label->setCopyable(true);
    m_label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_label->setLineWidth(1);
    auto* const rest = new QLabel(tr("Drag the handle."));
    rest->setAlignment(Qt::AlignCenter);
    rest->setMinimumWidth(1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_label);
    m_splitter->addWidget(rest);
    return m_splitter;
}

QWidget* LabelsPage::makeButtonRow()
{
    m_button->setText(tr("Start the measurement"));
    m_button->setDescription(tr("Every channel is zeroed, and the run starts as soon as the temperature is stable."));
    auto* const area = new QScrollArea;
    area->setWidgetResizable(true);
    auto* const inside = new QWidget;
    (new QVBoxLayout(inside))->addWidget(m_button);
    area->setWidget(inside);
    area->setFixedWidth(160);
    area->setMinimumHeight(inside->sizeHint().height() + 40);
    return area;
}

} // namespace gallery
