// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/OverrideCursorRestorer.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QGuiApplication>

namespace morvane::ui {

struct OverrideCursorRestorer::Impl
{
    bool wasActive = false;
};

OverrideCursorRestorer::OverrideCursorRestorer() : m_impl(std::make_unique<Impl>())
{
    expectGuiThread("OverrideCursorRestorer");
    if (const QCursor* const active = QGuiApplication::overrideCursor()) {
        m_cursor = *active;
        m_impl->wasActive = true;
        QGuiApplication::restoreOverrideCursor();
    }
}

OverrideCursorRestorer::~OverrideCursorRestorer()
{
    if (m_impl->wasActive) {
        QGuiApplication::setOverrideCursor(m_cursor);
    }
}

} // namespace morvane::ui
