// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/CopyHandlerAbstract.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QKeyEvent>

namespace morvane::ui {

CopyHandlerAbstract::CopyHandlerAbstract(QObject& watched) : QObject(&watched), m_watched(&watched)
{
    expectGuiThread("CopyHandlerAbstract");
    watched.installEventFilter(this);
}

CopyHandlerAbstract::~CopyHandlerAbstract()
{
    m_watched->removeEventFilter(this);
}

bool CopyHandlerAbstract::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        return false;
    }
    // Copying may delete this handler, so no member is used afterwards.
    copyToClipboard();
    return true;
}

} // namespace morvane::ui
