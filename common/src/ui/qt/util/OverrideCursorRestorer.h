// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QCursor>

#include <memory>

namespace morvane::ui {

/**
 * Suspends the application's override cursor as long as the guard exists, for instance to show a question in the middle
 * of a long operation.
 *
 * @snippet 18-wait-cursor/main.cpp question
 *
 * The guard removes only the top of the stack of override cursors: if there are two, the lower one is shown. Every
 * cursor that is pushed while the guard exists must be removed before the guard is destroyed. GUI thread only, while
 * the application object exists.
 */
class MORVANE_UI_EXPORT OverrideCursorRestorer
{
public:
    /**
     * Removes the top of the stack and stores it. If there is no override cursor, the constructor and the destructor do
     * nothing.
     */
    OverrideCursorRestorer();
    /** Pushes the stored cursor back onto the stack. */
    ~OverrideCursorRestorer();
    OverrideCursorRestorer(const OverrideCursorRestorer&) = delete;
    OverrideCursorRestorer& operator=(const OverrideCursorRestorer&) = delete;

private:
    struct Impl;

    QCursor m_cursor;
    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
