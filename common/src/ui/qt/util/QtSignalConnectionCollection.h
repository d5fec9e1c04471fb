#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QMetaObject>

#include <memory>
#include <vector>

namespace morvane::ui {

/**
 * Owns signal connections and cuts them all when it is destroyed.
 *
 * Meant as a member of an object that is no QObject, or that must stop listening before its other members go: declare
 * it last.
 *
 * @snippet 19-cut-connections/main.cpp member
 */
class MORVANE_UI_EXPORT QtSignalConnectionCollection
{
public:
    QtSignalConnectionCollection();
    /** Disconnects every connection, in the order of adding. Those that are broken already, as by the end of their
     * sender or receiver, are passed over. */
    ~QtSignalConnectionCollection();
    QtSignalConnectionCollection(const QtSignalConnectionCollection&) = delete;
    QtSignalConnectionCollection& operator=(const QtSignalConnectionCollection&) = delete;

    /** Takes over @p connection. One that failed to connect does no harm, nor does the same one twice. */
    void add(const QMetaObject::Connection& connection);

private:
    std::unique_ptr<std::vector<QMetaObject::Connection>> m_connections;
};

} // namespace morvane::ui
