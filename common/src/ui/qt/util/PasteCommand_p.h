// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/BlockPaste_p.h"

#include <QUndoCommand>

#include <memory>
#include <utility>

namespace morvane::ui {

/** The step of an undo stack for a block that has been pasted already. */
class PasteCommand : public QUndoCommand
{
public:
    PasteCommand(std::unique_ptr<BlockPaste> pasted, const QString& text)
        : QUndoCommand(text), m_pasted(std::move(pasted))
    {
    }

    void undo() override { m_pasted->takeBack(); }

    void redo() override
    {
        // The stack calls this when the command is pushed.
        if (!std::exchange(m_isNew, false)) {
            m_pasted->pasteAgain();
        }
    }

private:
    const std::unique_ptr<BlockPaste> m_pasted;
    bool m_isNew = true;
};

} // namespace morvane::ui
