// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/GuardsPage.h"
#include "tour/TourUser.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>

namespace gallery {

using tour::expect;

namespace {

/** Expects this override cursor; -1: no override cursor. */
QString expectShape(int shape)
{
    const QCursor* const cursor = QGuiApplication::overrideCursor();
    const int active = cursor ? static_cast<int>(cursor->shape()) : -1;
    return expect(active == shape, QStringLiteral("the override cursor has the shape %1").arg(active));
}

} // namespace

std::vector<TourStep> GuardsPage::tourSteps(const TourWorkspace&)
{
    const auto followed = [this](int bar, int slider) {
        return expect(m_bar->value() == bar && m_number->text() == QString::number(bar) && m_slider->value() == slider,
            QStringLiteral("the bar is at %1, the slider at %2").arg(m_bar->value()).arg(m_slider->value()));
    };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("wait-cursor"), [this] { tour::click(*m_waitButton); },
        [] { return expectShape(Qt::WaitCursor); }});
    steps.push_back({QStringLiteral("cross-on-top"), [this] { tour::click(*m_crossButton); },
        [] { return expectShape(Qt::CrossCursor); }});
    steps.push_back({QStringLiteral("suspended"), [this] { tour::click(*m_suspendButton); },
        [] { return expectShape(Qt::WaitCursor); }});
    steps.push_back({QStringLiteral("cursors-ended"),
        [this] {
            tour::click(*m_suspendButton);
            tour::click(*m_crossButton);
            tour::click(*m_waitButton);
        },
        [] { return expectShape(-1); }});
    steps.push_back({QStringLiteral("slider-followed"), [this] { tour::press(*m_slider, Qt::Key_PageUp); },
        [=] { return followed(10, 10); }});
    steps.push_back({QStringLiteral("connections-cut"),
        [this] {
            tour::click(*m_connected);
            tour::press(*m_slider, Qt::Key_End);
        },
        [=] { return followed(10, 100); }});
    steps.push_back({QStringLiteral("connected-again"),
        [this] {
            tour::click(*m_connected);
            tour::press(*m_slider, Qt::Key_PageDown);
        },
        [=] { return followed(90, 90); }});
    return steps;
}

} // namespace gallery
