#include "ui/qt/dialogs/shell/Shell.h"

#ifdef _WIN32
#include "ui/qt/dialogs/shell/WindowsShell_p.h"
#else
#include "ui/qt/dialogs/shell/WidgetShell_p.h"
#endif

namespace morvane::ui {

namespace {

Shell* replacementInstance = nullptr;

#ifdef _WIN32
using DefaultShell = WindowsShell;
#else
using DefaultShell = WidgetShell;
#endif

} // namespace

Shell::Shell() = default;

Shell::~Shell() = default;

Shell& Shell::instance()
{
    if (replacementInstance) {
        return *replacementInstance;
    }
    static DefaultShell defaultInstance;
    return defaultInstance;
}

Shell* Shell::setInstance(Shell* replacement)
{
    Shell* const previous = replacementInstance;
    replacementInstance = replacement;
    return previous;
}

ShellOverride::ShellOverride(Shell& replacement) : m_previous(Shell::setInstance(&replacement)) {}

ShellOverride::~ShellOverride()
{
    Shell::setInstance(m_previous);
}

} // namespace morvane::ui
