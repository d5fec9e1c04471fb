// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A value that validates each new value and calls its observers after a change. No window is needed.

#include "property/Property.h"

#include <iostream>
#include <string>

//! [validator]
// Decides which values the property accepts.
class VoltageValidator : public morvane::ValidatorInterface<double>
{
public:
    morvane::ValidationResult validate(const double& volts) const override
    {
        if (volts >= 0.0 && volts <= 400.0) {
            return morvane::ValidationResult(); // fine
        }
        return morvane::ValidationResult(std::to_string(volts) + " V is not between 0 and 400 V");
    }
};
//! [validator]

int main()
{
    //! [property]
    // Several parts of a program can share the property through shared pointers.
    const auto voltage = boost::make_shared<morvane::Property<double>>(230.0);
    voltage->setValidator(boost::make_shared<VoltageValidator>());

    // As long as the scoped connection exists, each change calls the function after the new value is stored.
    boost::signals2::scoped_connection observer =
        voltage->signalValueChanged.connect([](const double& volts) { std::cout << "now " << volts << " V\n"; });

    voltage->setValue(235.0); // announced
    voltage->setValue(235.0); // no change, so no observer is called

    try {
        voltage->setValue(1000.0);
    } catch (const morvane::InvalidPropertyValueException& exception) {
        std::cout << "rejected: " << exception.what() << '\n';
    }
    //! [property]
    std::cout << "still " << voltage->value() << " V\n";
}
