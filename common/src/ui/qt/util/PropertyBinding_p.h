// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaProperty>
#include <QObject>
#include <QPointer>

namespace morvane::ui {

class PropertyAdapter;

/** Keeps a property of one object equal to the value of an adapter, which owns it. */
class PropertyBinding : public QObject
{
    Q_OBJECT

public:
    PropertyBinding(PropertyAdapter& adapter, QObject& object, const QMetaProperty& property);

public Q_SLOTS:
    void objectChanged();

private:
    void writeToObject();

    PropertyAdapter& m_adapter;
    QPointer<QObject> m_object;
    QMetaProperty m_property;
    bool m_isWriting = false;
};

} // namespace morvane::ui
