// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/MorvaneUiExport.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace morvane::ui {

/**
 * A property as a QObject: with a signal of Qt for its changes, and bound to a control if you like.
 *
 * The value is a QVariant. A property of `std::string`, which is UTF-8, has a QString in it. Every other type must be
 * known to QMetaType. Values that are set may be of another type if no information is lost: the text "12" sets an int,
 * and 1.5 does not.
 *
 * The adapter shares the property and keeps it alive. Use it on the GUI thread.
 *
 * @snippet 36-properties-in-forms/main.cpp bind
 */
class MORVANE_UI_EXPORT PropertyAdapter : public QObject
{
    Q_OBJECT
    /** The value of the property. */
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /**
     * @param property if null, value() is invalid, and every value is rejected
     * @param parent   the owner; may be null
     */
    template <typename T>
    explicit PropertyAdapter(boost::shared_ptr<PropertyAbstract<T>> property, QObject* parent = nullptr)
        : PropertyAdapter(property ? accessTo(property) : Access{}, parent)
    {
        if (property) {
            observe(property->signalValueChanged.connect([this](const T& value) { emitChange(toVariant(value)); }));
        }
    }
    /** The same for a concrete property, so that the result of `boost::make_shared` can be passed as it is. */
    template <typename P, typename T = decltype(std::declval<P>().value())>
    explicit PropertyAdapter(const boost::shared_ptr<P>& property, QObject* parent = nullptr)
        : PropertyAdapter(boost::shared_ptr<PropertyAbstract<T>>(property), parent)
    {
    }
    /** Ends all bindings. The controls keep their values. */
    ~PropertyAdapter() override;

    /** Returns the property's current value. */
    QVariant value() const;

    /**
     * Keeps the property @p name of @p object equal to this one, in both directions. @p object gets the current value
     * first. When its notify signal tells that it changed, its value is set here; if that is rejected, it gets the old
     * value back. If it shows a value differently, for instance a spin box with a smaller range, both keep their own
     * until one of them changes.
     *
     * The binding ends with @p object or with the adapter, whichever is destroyed first. One adapter may be bound to
     * several objects.
     *
     * @param object may be null; nothing is bound then
     * @param name   a property with a notify signal; if empty, the object's user property, such as the text of a
     *               QLineEdit or the value of a spin box. A property without a notify signal that replaces one of a
     *               base class has that one's signal, such as the value of a QScientificSpinBox.
     * @param signal if not null, the signal that replaces the notify signal, in Qt's notation:
     *               `SIGNAL(editingFinished())`. A line edit needs it if the validator would reject a text that is not
     *               typed to its end.
     * @return whether it is bound; false if there is no such property or signal
     */
    bool bindTo(QObject* object, const QByteArray& name = QByteArray(), const char* signal = nullptr);

public Q_SLOTS:
    /**
     * Sets the property. Exceptions of its validator become the signal valueRejected(). Other exceptions, those of
     * observers, reach the caller.
     * @return whether the property accepted @p value; true also if it had this value already
     */
    bool setValue(const QVariant& value);

Q_SIGNALS:
    /** Fires once after each change of the property, also if somebody else set it, with the new value. */
    void valueChanged(const QVariant& value);
    /**
     * Fires when setValue() or a bound control is refused.
     * @param value  what was to be set
     * @param reason the validator's text, or a sentence that says that the value is of the wrong kind
     */
    void valueRejected(const QVariant& value, const QString& reason);

private:
    /** The property without its type. */
    struct Access
    {
        std::function<QVariant()> read;
        std::function<bool(const QVariant&)> write; ///< returns false if the value is of the wrong kind
    };
    struct Impl;

    PropertyAdapter(Access access, QObject* parent);
    void observe(const boost::signals2::connection& connection);
    void emitChange(const QVariant& value);

    static std::optional<long long> toInteger(const QVariant& value, long long lowest, long long highest);
    static std::optional<unsigned long long> toUnsigned(const QVariant& value, unsigned long long highest);
    static std::optional<double> toDouble(const QVariant& value, double largest);
    static bool convert(QVariant& value, int type);

    template <typename T, typename Number>
    static std::optional<T> narrowed(std::optional<Number> number)
    {
        return number ? std::optional(static_cast<T>(*number)) : std::nullopt;
    }

    template <typename T>
    static QVariant toVariant(const T& value)
    {
        if constexpr (std::is_same_v<T, std::string>) {
            return QString::fromStdString(value);
        } else {
            return QVariant::fromValue(value);
        }
    }

    template <typename T>
    static std::optional<T> fromVariant(QVariant value)
    {
        if constexpr (std::is_same_v<T, std::string>) {
            return convert(value, qMetaTypeId<QString>()) ? std::optional(value.toString().toStdString())
                                                          : std::nullopt;
        } else if constexpr (std::is_same_v<T, unsigned long> || std::is_same_v<T, unsigned long long>) {
            return narrowed<T>(toUnsigned(value, std::numeric_limits<T>::max()));
        } else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
            return narrowed<T>(toInteger(value, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
        } else if constexpr (std::is_floating_point_v<T>) {
            return narrowed<T>(toDouble(value, static_cast<double>(std::numeric_limits<T>::max())));
        } else {
            return convert(value, qMetaTypeId<T>()) ? std::optional(value.value<T>()) : std::nullopt;
        }
    }

    template <typename T>
    static Access accessTo(const boost::shared_ptr<PropertyAbstract<T>>& property)
    {
        return {[property] { return toVariant(property->value()); },
            [property](const QVariant& value) {
                const auto typed = fromVariant<T>(value);
                if (typed) {
                    property->setValue(*typed);
                }
                return typed.has_value();
            }};
    }

    std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
