// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QMetaObject>

#include <memory>
#include <vector>

namespace morvane::ui {

/**
 * Owns signal connections and disconnects all of them in its destructor.
 *
 * Use it as a member of an object that is not a QObject, or whose connections must end before its other members are
 * destroyed. Declare it as the last member.
 *
 * @snippet 19-cut-connections/main.cpp member
 */
class MORVANE_UI_EXPORT QtSignalConnectionCollection
{
public:
    QtSignalConnectionCollection();
    /**
     * Disconnects every connection, in the order of adding. Connections that are already broken, for instance because
     * the sender or receiver was destroyed, are skipped.
     */
    ~QtSignalConnectionCollection();
    QtSignalConnectionCollection(const QtSignalConnectionCollection&) = delete;
    QtSignalConnectionCollection& operator=(const QtSignalConnectionCollection&) = delete;

    /** Adds @p connection. An invalid connection is allowed, and so is adding the same connection twice. */
    void add(const QMetaObject::Connection& connection);

private:
    std::unique_ptr<std::vector<QMetaObject::Connection>> m_connections;
};

} // namespace morvane::ui
