// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/GuardsPage.h"

#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"
#include "ui/qt/util/QtSignalConnectionCollection.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace gallery {

namespace {

QPushButton* makeSwitch(const QString& text)
{
    auto* const button = new QPushButton(text);
    button->setCheckable(true);
    return button;
}

} // namespace

GuardsPage::GuardsPage()
    : Page(QStringLiteral("guards"), tr("Cursor guards and connections"),
          tr("Each button creates a guard when it is checked and destroys it when it is unchecked. Watch the mouse "
             "pointer.")),
      m_waitButton(makeSwitch(tr("&Wait Cursor"))),
      m_crossButton(makeSwitch(tr("C&ross on Top of It"))),
      m_suspendButton(makeSwitch(tr("&Suspend the Top One"))),
      m_cursorState(new QLabel),
      m_connected(new QCheckBox(tr("The number and the bar &follow the slider"))),
      m_slider(new QSlider(Qt::Horizontal)),
      m_bar(new QProgressBar),
      m_number(new QLabel)
{
    body().addWidget(makeCursorGroup());
    body().addWidget(makeConnectionGroup());
    body().addStretch(1);

    connect(m_waitButton, &QPushButton::toggled, this, [this](bool on) { setWaiting(on); });
    connect(m_crossButton, &QPushButton::toggled, this, [this](bool on) { setCross(on); });
    connect(m_suspendButton, &QPushButton::toggled, this, [this](bool on) { setSuspended(on); });
    connect(m_connected, &QCheckBox::toggled, this, [this](bool on) { setConnected(on); });
    showCursorState();
    m_connected->setChecked(true);
}

GuardsPage::~GuardsPage()
{
    m_suspension.reset();
    m_cross.reset();
    m_wait.reset();
}

QWidget* GuardsPage::makeCursorGroup()
{
    auto* const group = new QGroupBox(tr("Override cursors"));
    auto* const layout = new QVBoxLayout(group);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_waitButton);
    buttons->addWidget(m_crossButton);
    buttons->addWidget(m_suspendButton);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    layout->addWidget(m_cursorState);
    return group;
}

QWidget* GuardsPage::makeConnectionGroup()
{
    m_slider->setRange(0, 100);
    m_slider->setAccessibleName(tr("Slider"));
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setTextVisible(false);
    m_number->setNum(0);

    auto* const group = new QGroupBox(tr("Signal connections"));
    auto* const form = new QFormLayout(group);
    form->addRow(m_connected);
    form->addRow(tr("S&lider:"), m_slider);
    form->addRow(tr("Number:"), m_number);
    form->addRow(tr("Bar:"), m_bar);
    return group;
}

void GuardsPage::setWaiting(bool on)
{
    m_wait = on ? std::make_unique<morvane::ui::OverrideCursor>(Qt::WaitCursor) : nullptr;
    showCursorState();
}

void GuardsPage::setCross(bool on)
{
    m_cross = on ? std::make_unique<morvane::ui::OverrideCursor>(Qt::CrossCursor) : nullptr;
    showCursorState();
}

void GuardsPage::setSuspended(bool on)
{
    m_suspension = on ? std::make_unique<morvane::ui::OverrideCursorRestorer>() : nullptr;
    showCursorState();
}

void GuardsPage::setConnected(bool on)
{
    m_connections.reset();
    if (on) {
        m_connections = std::make_unique<morvane::ui::QtSignalConnectionCollection>();
        m_connections->add(connect(m_slider, &QSlider::valueChanged, m_bar, &QProgressBar::setValue));
        m_connections->add(
            connect(m_slider, &QSlider::valueChanged, m_number, [this](int value) { m_number->setNum(value); }));
    }
    Q_EMIT reported(on ? tr("Two connections made") : tr("All connections cut"));
}

void GuardsPage::showCursorState()
{
    // Guards must be destroyed in the reverse order of their creation, so only the last one can be changed.
    m_waitButton->setEnabled(!m_cross && !m_suspension);
    m_crossButton->setEnabled(m_wait && !m_suspension);
    m_suspendButton->setEnabled(m_wait != nullptr);

    const QCursor* const cursor = QGuiApplication::overrideCursor();
    const QString state = !cursor                              ? tr("The pointer is the usual one.")
                          : cursor->shape() == Qt::CrossCursor ? tr("The pointer is a cross everywhere.")
                                                               : tr("The pointer is the wait cursor everywhere.");
    m_cursorState->setText(state);
    Q_EMIT reported(state);
}

void GuardsPage::hideEvent(QHideEvent* event)
{
    m_suspendButton->setChecked(false);
    m_crossButton->setChecked(false);
    m_waitButton->setChecked(false);
    Page::hideEvent(event);
}

} // namespace gallery
