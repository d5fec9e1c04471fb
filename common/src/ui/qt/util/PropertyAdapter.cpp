// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/PropertyAdapter.h"
#include "ui/qt/util/PropertyBinding_p.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>

#include <cmath>

namespace morvane::ui {

namespace {

bool isFloating(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

QMetaProperty propertyOf(const QMetaObject& meta, const QByteArray& name)
{
    return name.isEmpty() ? meta.userProperty() : meta.property(meta.indexOfProperty(name.constData()));
}

/** The notify signal of @p property or, if it has none, of the property of a base class that it replaces. */
QMetaMethod notifySignalOf(const QMetaObject& meta, const QMetaProperty& property)
{
    for (const QMetaObject* type = property.isValid() ? &meta : nullptr; type; type = type->superClass()) {
        const QMetaProperty replaced = type->property(type->indexOfProperty(property.name()));
        if (replaced.hasNotifySignal()) {
            return replaced.notifySignal();
        }
    }
    return {};
}

/** @param text null, or the result of Qt's macro SIGNAL, which puts a digit before the signature */
QMetaMethod signalOf(const QMetaObject& meta, const QMetaProperty& property, const char* text)
{
    if (!text) {
        return notifySignalOf(meta, property);
    }
    const QByteArray signature = QMetaObject::normalizedSignature(*text == '2' ? text + 1 : text);
    return meta.method(meta.indexOfSignal(signature.constData()));
}

// Qt 6 wants a QMetaType, Qt 5 a number. The first fits better if it compiles.
template <typename Variant>
auto convertTo(Variant& value, int type, int) -> decltype(value.convert(QMetaType(type)))
{
    return value.convert(QMetaType(type));
}

template <typename Variant>
bool convertTo(Variant& value, int type, long)
{
    return value.convert(type);
}

} // namespace

struct PropertyAdapter::Impl
{
    Access access;
    boost::signals2::scoped_connection connection;
};

PropertyAdapter::PropertyAdapter(Access access, QObject* parent) : QObject(parent), m_impl(std::make_unique<Impl>())
{
    m_impl->access = std::move(access);
}

PropertyAdapter::~PropertyAdapter() = default;

QVariant PropertyAdapter::value() const
{
    return m_impl->access.read ? m_impl->access.read() : QVariant();
}

bool PropertyAdapter::setValue(const QVariant& value)
{
    const QPointer<PropertyAdapter> self(this);
    const auto write = m_impl->access.write; // keeps the property alive
    QString reason = tr("\"%1\" cannot be used here.").arg(value.toString());
    try {
        if (write && write(value)) {
            return true;
        }
    } catch (const InvalidPropertyValueException& refusal) {
        reason = QString::fromUtf8(refusal.what());
    }
    if (self) {
        Q_EMIT valueRejected(value, reason);
    }
    return false;
}

bool PropertyAdapter::bindTo(QObject* object, const QByteArray& name, const char* signal)
{
    if (!object) {
        return false;
    }
    const QMetaProperty property = propertyOf(*object->metaObject(), name);
    const QMetaMethod changed = signalOf(*object->metaObject(), property, signal);
    if (!property.isValid() || !property.isWritable() || !changed.isValid()) {
        return false;
    }
    auto* const binding = new PropertyBinding(*this, *object, property);
    const QMetaObject& meta = PropertyBinding::staticMetaObject;
    connect(object, changed, binding, meta.method(meta.indexOfSlot("objectChanged()")));
    return true;
}

void PropertyAdapter::observe(const boost::signals2::connection& connection)
{
    m_impl->connection = connection;
}

void PropertyAdapter::emitChange(const QVariant& value)
{
    Q_EMIT valueChanged(value);
}

// QVariant would round 1.5, and cut what is too large.
std::optional<long long> PropertyAdapter::toInteger(const QVariant& value, long long lowest, long long highest)
{
    bool isNumber = true;
    long long number = 0;
    if (isFloating(value)) {
        const double floating = value.toDouble();
        isNumber = std::trunc(floating) == floating && std::abs(floating) < 0x1p63;
        number = isNumber ? static_cast<long long>(floating) : 0;
    } else {
        number = value.toLongLong(&isNumber);
        isNumber = isNumber && (number >= 0 || value.userType() != QMetaType::ULongLong);
    }
    return isNumber && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

std::optional<unsigned long long> PropertyAdapter::toUnsigned(const QVariant& value, unsigned long long highest)
{
    bool isNumber = false;
    unsigned long long number = 0;
    if (value.userType() == QMetaType::ULongLong || value.userType() == QMetaType::QString) {
        number = value.toULongLong(&isNumber);
    } else if (const auto integer = toInteger(value, 0, std::numeric_limits<long long>::max())) {
        number = static_cast<unsigned long long>(*integer);
        isNumber = true;
    }
    return isNumber && number <= highest ? std::optional(number) : std::nullopt;
}

std::optional<double> PropertyAdapter::toDouble(const QVariant& value, double largest)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && (!std::isfinite(number) || std::abs(number) <= largest) ? std::optional(number) : std::nullopt;
}

bool PropertyAdapter::convert(QVariant& value, int type)
{
    return value.userType() == type || convertTo(value, type, 0);
}

} // namespace morvane::ui
