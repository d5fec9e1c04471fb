// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace morvane::test {

/** Something that is opened and closed again and again. */
struct Subject
{
    const char* name;
    /** Opens it once on the given window, and closes it. */
    std::function<void(QWidget&)> cycle;
    /**
     * The name of a subject that uses the same system service, or keeps the same objects, without the code under test.
     * This subject may grow as much as that one. If null or not a subject of this platform, it must not grow at all.
     */
    const char* reference = nullptr;
    /** Is only a reference for others: it may grow. */
    bool isReference = false;
};

/** The library's dialogs, on Qt's widgets and on the native dialog. */
std::vector<Subject> dialogSubjects();
/** The library's widgets and what works on widgets. */
std::vector<Subject> widgetSubjects();

} // namespace morvane::test
