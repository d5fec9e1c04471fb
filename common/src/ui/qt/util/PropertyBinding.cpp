// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/PropertyAdapter.h"
#include "ui/qt/util/PropertyBinding_p.h"

#include <QScopedValueRollback>

namespace morvane::ui {

PropertyBinding::PropertyBinding(PropertyAdapter& adapter, QObject& object, const QMetaProperty& property)
    : QObject(&adapter), m_adapter(adapter), m_object(&object), m_property(property)
{
    connect(&adapter, &PropertyAdapter::valueChanged, this, &PropertyBinding::writeToObject);
    connect(&object, &QObject::destroyed, this, &QObject::deleteLater);
    writeToObject();
}

void PropertyBinding::objectChanged()
{
    if (m_isWriting || !m_object) {
        return;
    }
    const QPointer<PropertyBinding> self(this);
    const bool isAccepted = m_adapter.setValue(m_property.read(m_object));
    if (self && !isAccepted) {
        writeToObject();
    }
}

// The adapter's current value, and not the one of the signal: an observer may have set another one meanwhile.
void PropertyBinding::writeToObject()
{
    if (m_isWriting || !m_object) {
        return;
    }
    const QVariant value = m_adapter.value();
    if (m_property.read(m_object) == value) {
        return;
    }
    const QPointer<PropertyBinding> self(this);
    m_isWriting = true;
    m_property.write(m_object, value);
    if (self) {
        m_isWriting = false;
    }
}

} // namespace morvane::ui
