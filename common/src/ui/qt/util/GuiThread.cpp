// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/GuiThread_p.h"

#include <QtGlobal>

#ifndef QT_NO_DEBUG

#include <QCoreApplication>
#include <QMessageLogger>
#include <QThread>

namespace morvane::ui {

void expectGuiThread(const char* what)
{
    const QCoreApplication* const application = QCoreApplication::instance();
    if (application && application->thread() != QThread::currentThread()) {
        QMessageLogger().warning("Warning: %s is used outside the GUI thread", what);
    }
}

} // namespace morvane::ui

#endif
