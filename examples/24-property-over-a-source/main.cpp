// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A property whose value is stored elsewhere, here in an environment variable. No window appears.

#include "property/PropertyAbstract.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

//! [mirror]
class EnvironmentProperty : public morvane::PropertyAbstract<std::string>
{
public:
    explicit EnvironmentProperty(const char* name) : m_name(name) { refresh(); }

    std::string value() const override { return m_value; }

    // Other code may have changed the variable.
    void refresh() override
    {
        const char* const text = std::getenv(m_name);
        std::string now = text ? text : "";
        if (now != m_value) {
            m_value = std::move(now);
            emitValueChanged(m_value);
        }
    }

protected:
    // setValue() calls this function with a value that is valid and new, and announces the value afterwards.
    void storeValue(const std::string& text) override { m_value = text; }

private:
    const char* m_name;
    std::string m_value;
};
//! [mirror]

int main()
{
    EnvironmentProperty home("HOME");
    home.signalValueChanged.connect([](const std::string& text) { std::cout << "now " << text << '\n'; });
    home.setValue("/tmp/elsewhere");
    //! [usage]
    home.setValidator(boost::make_shared<morvane::AllowAnyValueValidator<std::string>>()); // same as the initial one
    //! [usage]
    home.refresh();
}
