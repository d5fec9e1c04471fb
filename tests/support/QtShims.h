// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

// What Qt 5 and Qt 6 spell differently. The only place of the tests that asks for the version of Qt.

#include <QFileDialog>
#include <QKeySequence>
#include <QProcess>

namespace morvane::test {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
/** The type behind the last argument of QAbstractNativeEventFilter::nativeEventFilter(). */
using NativeEventResult = long;
#else
using NativeEventResult = qintptr;
#endif

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
/** The mode that Qt 5 keeps though it is deprecated; with Qt 6, the mode as which it is treated. */
constexpr QFileDialog::FileMode directoryOnly = static_cast<QFileDialog::FileMode>(4);
#else
constexpr QFileDialog::FileMode directoryOnly = QFileDialog::AnyFile;
#endif

/** The first key of a sequence, combined with its modifiers. */
inline int firstKeyOf(const QKeySequence& sequence)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return sequence[0];
#else
    return sequence[0].toCombined();
#endif
}

#ifndef _WIN32
/** A process that does something in the child before the program starts. */
class PreparedProcess : public QProcess
{
protected:
    /** Runs in the child, between fork() and exec(). */
    virtual void prepareChild() = 0;

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    void setupChildProcess() override
    {
        prepareChild();
    }
#else
    PreparedProcess()
    {
        setChildProcessModifier([this] { prepareChild(); });
    }
#endif
};
#endif

} // namespace morvane::test
