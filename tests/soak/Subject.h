#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace morvane::test {

/** Something that is opened and closed again and again. */
struct Subject
{
    const char* name;
    /** Opens it once on the window given, and closes it. */
    std::function<void(QWidget&)> cycle;
    /**
     * The name of a subject that uses the same system service or keeps the same objects without what is tested here; it
     * may grow as much as that does. Null, or not among the subjects of the platform: it must not grow at all.
     */
    const char* reference = nullptr;
    /** Only there to be compared with: it may grow. */
    bool isReference = false;
};

/** The library's dialogs, on Qt's widgets and on the native dialog. */
std::vector<Subject> dialogSubjects();
/** The library's widgets and what works on widgets. */
std::vector<Subject> widgetSubjects();

} // namespace morvane::test
