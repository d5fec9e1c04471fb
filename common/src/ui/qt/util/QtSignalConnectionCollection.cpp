// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/QtSignalConnectionCollection.h"

#include <QObject>

namespace morvane::ui {

QtSignalConnectionCollection::QtSignalConnectionCollection()
    : m_connections(std::make_unique<std::vector<QMetaObject::Connection>>())
{
}

QtSignalConnectionCollection::~QtSignalConnectionCollection()
{
    for (const QMetaObject::Connection& connection : *m_connections) {
        QObject::disconnect(connection);
    }
}

void QtSignalConnectionCollection::add(const QMetaObject::Connection& connection)
{
    m_connections->push_back(connection);
}

} // namespace morvane::ui
