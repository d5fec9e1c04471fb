#pragma once

namespace morvane {

/**
 * Puts another object in the place of a host service for as long as the guard lives.
 *
 * @snippet 22-host-services/main.cpp override
 *
 * The replacement is not owned and must outlive the guard. Guards nest and are destroyed in reverse order of their
 * construction, which scopes do by themselves.
 *
 * @tparam Service HelpLauncher, ApplicationSettings, or any class with a static `Service* setInstance(Service*)` that
 *         returns the previous replacement.
 */
template <typename Service>
class InstanceOverride
{
public:
    /** Puts @p replacement in place. */
    explicit InstanceOverride(Service& replacement) : m_previous(Service::setInstance(&replacement)) {}
    /** Puts what was there before back in place. */
    ~InstanceOverride() { Service::setInstance(m_previous); }
    InstanceOverride(const InstanceOverride&) = delete;
    InstanceOverride& operator=(const InstanceOverride&) = delete;

private:
    Service* m_previous;
};

} // namespace morvane
