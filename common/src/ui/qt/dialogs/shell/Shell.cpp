// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/Shell.h"

#include "host/InstanceOverride.h"
#include "host/ReplaceableInstance_p.h"

#ifdef _WIN32
#include "ui/qt/dialogs/shell/WindowsShell_p.h"
#else
#include "ui/qt/dialogs/shell/WidgetShell_p.h"
#endif

namespace morvane::ui {

namespace {

ReplaceableInstance<Shell> currentShell;

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
    return currentShell.get<DefaultShell>();
}

Shell* Shell::setInstance(Shell* replacement)
{
    return currentShell.replace(replacement);
}

struct ShellOverride::Impl
{
    explicit Impl(Shell& replacement) : guard(replacement) {}

    InstanceOverride<Shell> guard;
};

ShellOverride::ShellOverride(Shell& replacement) : m_impl(std::make_unique<Impl>(replacement)) {}

ShellOverride::~ShellOverride() = default;

} // namespace morvane::ui
