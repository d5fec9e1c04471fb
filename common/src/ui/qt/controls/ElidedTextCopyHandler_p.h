// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/CopyHandlerAbstract.h"

class ElidedTextLabel;
class QContextMenuEvent;

namespace morvane::ui {

/** Copies the whole text of an ElidedTextLabel: with the copy shortcut, and with a context menu. */
class ElidedTextCopyHandler : public CopyHandlerAbstract
{
    Q_OBJECT

public:
    /** The label gets the focus by Tab and by clicks from now on, unless the host has set a focus policy. */
    explicit ElidedTextCopyHandler(ElidedTextLabel& label);
    ~ElidedTextCopyHandler() override;

    /** Null if the label has none. */
    static ElidedTextCopyHandler* find(const ElidedTextLabel& label);
    /** Deletes the handler. The label has its focus policy again. */
    void remove();

    bool eventFilter(QObject* watched, QEvent* event) override;
    /** Does nothing if the text is empty. */
    void copyToClipboard() override;

private:
    bool showMenu(const QContextMenuEvent& event);

    ElidedTextLabel& m_label;
    const bool m_setsFocusPolicy;
};

} // namespace morvane::ui
