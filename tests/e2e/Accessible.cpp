// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/Accessible.h"

#include "e2e/Eventually.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace morvane::test {

namespace {

const QString node = QStringLiteral("org.a11y.atspi.Accessible");

// Bits of the states, in their published order.
constexpr unsigned focused = 12;
constexpr unsigned selected = 23;
constexpr unsigned showing = 25;
constexpr unsigned screenCoordinates = 0;

bool holdsMany(const QString& role)
{
    return role == QLatin1String("list") || role == QLatin1String("table") || role == QLatin1String("tree");
}

} // namespace

Accessible::Accessible(QDBusConnection bus, QString service, QString path)
    : m_bus(std::move(bus)), m_service(std::move(service)), m_path(std::move(path))
{
}

Accessible Accessible::desktop(const QDBusConnection& bus)
{
    return Accessible(
        bus, QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root"));
}

QList<QVariant> Accessible::call(
    const QString& interface, const QString& method, const QList<QVariant>& arguments) const
{
    QDBusMessage question = QDBusMessage::createMethodCall(m_service, m_path, interface, method);
    question.setArguments(arguments);
    const QDBusMessage answer = m_bus.call(question, QDBus::Block, timeLimitMs);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QList<QVariant>();
}

QString Accessible::role() const
{
    return call(node, QStringLiteral("GetRoleName")).value(0).toString();
}

QString Accessible::name() const
{
    const auto answer =
        call(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {node, QStringLiteral("Name")});
    return answer.value(0).value<QDBusVariant>().variant().toString();
}

QRect Accessible::rectangle() const
{
    const auto answer =
        call(QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"), {screenCoordinates});
    if (answer.isEmpty()) {
        return QRect();
    }
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const auto structure = answer.first().value<QDBusArgument>();
    structure.beginStructure();
    structure >> x >> y >> width >> height;
    structure.endStructure();
    return QRect(x, y, width, height);
}

QString Accessible::text() const
{
    const int toTheEnd = -1;
    return call(QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"), {0, toTheEnd}).value(0).toString();
}

bool Accessible::hasState(unsigned bit) const
{
    const auto answer = call(node, QStringLiteral("GetState"));
    QList<uint> words;
    if (!answer.isEmpty()) {
        answer.first().value<QDBusArgument>() >> words;
    }
    return (words.value(static_cast<int>(bit / 32)) >> (bit % 32) & 1U) != 0;
}

bool Accessible::isShowing() const
{
    return hasState(showing);
}

bool Accessible::isFocused() const
{
    return hasState(focused);
}

bool Accessible::isSelected() const
{
    return hasState(selected);
}

std::vector<Accessible> Accessible::children() const
{
    std::vector<Accessible> result;
    const auto answer = call(node, QStringLiteral("GetChildren"));
    if (answer.isEmpty()) {
        return result;
    }
    const auto array = answer.first().value<QDBusArgument>();
    array.beginArray();
    while (!array.atEnd()) {
        QString service;
        QDBusObjectPath path;
        array.beginStructure();
        array >> service >> path;
        array.endStructure();
        result.emplace_back(m_bus, service, path.path());
    }
    array.endArray();
    return result;
}

Accessible Accessible::child(int position) const
{
    const auto answer = call(node, QStringLiteral("GetChildAtIndex"), {position});
    QString service;
    QDBusObjectPath path;
    if (!answer.isEmpty()) {
        const auto structure = answer.first().value<QDBusArgument>();
        structure.beginStructure();
        structure >> service >> path;
        structure.endStructure();
    }
    return Accessible(m_bus, service, path.path());
}

std::optional<Accessible> Accessible::find(const QString& role, const QString& name) const
{
    for (const Accessible& child : children()) {
        if (!child.isShowing()) {
            continue;
        }
        const QString childRole = child.role();
        if (childRole == role && child.name() == name) {
            return child;
        }
        if (holdsMany(childRole)) {
            continue;
        }
        if (auto found = child.find(role, name)) {
            return found;
        }
    }
    return std::nullopt;
}

QString Accessible::describe(int depth) const
{
    const QString itsRole = role();
    QString result =
        QString(2 * depth, QLatin1Char(' ')) + itsRole + QStringLiteral(" \"") + name() + QStringLiteral("\"\n");
    if (holdsMany(itsRole)) {
        return result;
    }
    for (const Accessible& child : children()) {
        if (child.isShowing()) {
            result += child.describe(depth + 1);
        }
    }
    return result;
}

} // namespace morvane::test
