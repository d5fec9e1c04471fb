// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

namespace morvane {

/**
 * Replaces a host service by another object as long as the guard exists.
 *
 * @snippet 22-host-services/main.cpp override
 *
 * The guard does not own the replacement, which must outlive the guard. Guards can be nested. They must be destroyed in
 * the reverse order of their construction, as automatic variables are.
 *
 * @tparam Service HelpLauncher, ApplicationSettings, or any class with a static `Service* setInstance(Service*)` that
 *         returns the previous replacement.
 */
template <typename Service>
class InstanceOverride
{
public:
    /** Makes @p replacement the instance of the service. */
    explicit InstanceOverride(Service& replacement) : m_previous(Service::setInstance(&replacement)) {}
    /** Restores the previous instance. */
    ~InstanceOverride() { Service::setInstance(m_previous); }
    InstanceOverride(const InstanceOverride&) = delete;
    InstanceOverride& operator=(const InstanceOverride&) = delete;

private:
    Service* m_previous;
};

} // namespace morvane
