#include "ui/qt/util/OverrideCursorRestorer.h"

#include "ui/qt/util/GuiThread_p.h"

#include <QGuiApplication>

namespace morvane::ui {

OverrideCursorRestorer::OverrideCursorRestorer()
{
    expectGuiThread("OverrideCursorRestorer");
    if (const QCursor* const active = QGuiApplication::overrideCursor()) {
        m_cursor = *active;
        m_wasActive = true;
        QGuiApplication::restoreOverrideCursor();
    }
}

OverrideCursorRestorer::~OverrideCursorRestorer()
{
    if (m_wasActive) {
        QGuiApplication::setOverrideCursor(m_cursor);
    }
}

} // namespace morvane::ui
