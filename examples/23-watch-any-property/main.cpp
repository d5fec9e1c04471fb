// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Observing properties without knowing their types: one flag for "something is not saved yet". No window appears.

#include "property/Property.h"

#include <iostream>
#include <string>
#include <vector>

//! [watch]
class Document
{
public:
    void watch(morvane::PropertyItemInterface& property)
    {
        m_observers.emplace_back(property.signalPropertyChanged.connect([this] { m_isModified = true; }));
    }
    bool isModified() const { return m_isModified; }
    void markSaved() { m_isModified = false; }

private:
    bool m_isModified = false;
    std::vector<boost::signals2::scoped_connection> m_observers; // disconnected with the document
};
//! [watch]

int main()
{
    //! [types]
    morvane::Property<std::string> title("Run 17");
    morvane::Property<int> samples(1024);
    //! [types]
    Document document;
    document.watch(title);
    document.watch(samples);

    samples.setValue(2048);
    std::cout << "modified: " << document.isModified() << '\n';
    document.markSaved();
    title.setValue("Run 17"); // the current value
    std::cout << "modified: " << document.isModified() << '\n';
}
