// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Uses each library of the package. It needs no display.
#include "host/StringConversion.h"
#include "property/Property.h"
#include "ui/qt/util/QtSignalConnectionCollection.h"

#include <QCoreApplication>
#include <QObject>

#include <boost/make_shared.hpp>

#include <iostream>

namespace {

/** The collection cuts the connection that it owns. */
bool connectionEndsWithItsCollection()
{
    QObject sender;
    int calls = 0;
    {
        morvane::ui::QtSignalConnectionCollection connections;
        connections.add(QObject::connect(&sender, &QObject::objectNameChanged, [&calls] { ++calls; }));
        sender.setObjectName(QStringLiteral("first"));
    }
    sender.setObjectName(QStringLiteral("second"));
    return calls == 1;
}

bool valueIsObserved()
{
    int announced = 0;
    const auto count = boost::make_shared<morvane::Property<int>>(1);
    count->signalValueChanged.connect([&announced](const int& value) { announced = value; });
    count->setValue(2);
    return announced == 2;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool converts = morvane::utf8ToWideString("x") == L"x";
    const bool works = converts && valueIsObserved() && connectionEndsWithItsCollection();
    std::cout << (works ? "Morvane works" : "Morvane does not work") << " with Qt " << qVersion() << '\n';
    return works ? 0 : 1;
}
