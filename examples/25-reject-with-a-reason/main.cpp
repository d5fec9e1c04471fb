// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Errors with a reason, also for the host's own code: all of them can be caught as one type. No window appears.

#include "host/ExceptionBase.h"
#include "host/StringConversion.h"
#include "property/Property.h"

#include <iostream>
#include <string>

//! [validator]
class NotEmpty : public morvane::ValidatorInterface<std::string>
{
public:
    morvane::ValidationResult validate(const std::string& text) const override
    {
        return text.empty() ? morvane::ValidationResult("a name is needed") : morvane::ValidationResult();
    }
};
//! [validator]

//! [exception]
class InstrumentError : public morvane::ExceptionBase
{
public:
    using ExceptionBase::ExceptionBase;
};
//! [exception]

int main()
{
    morvane::Property<std::string> name("Run 17");
    name.setValidator(boost::make_shared<NotEmpty>());
    for (const char* const text : {"Prüfstand", ""}) {
        //! [catch]
        try {
            name.setValue(text);
            throw InstrumentError("the instrument does not answer");
        } catch (const morvane::ExceptionBase& error) { // also catches the rejection of the empty name
            std::cout << error.what() << '\n';
        }
        //! [catch]
    }
    //! [wide]
    const std::wstring wide = morvane::utf8ToWideString(name.value()); // for interfaces that need wide characters
    std::cout << wide.size() << " characters in " << name.value().size() << " bytes\n";
    //! [wide]
}
