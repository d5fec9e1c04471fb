// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace morvane::test {

/**
 * A part of another program as assistive technology sees it: its role, its name and its place. Each call asks the
 * program over the accessibility bus. Parts that no longer exist have no name, no rectangle and no children.
 */
class Accessible
{
public:
    Accessible(QDBusConnection bus, QString service, QString path);

    /** The root of every program on the bus. */
    static Accessible desktop(const QDBusConnection& bus);

    /** "push button", "check box", "text", "table cell", ... */
    QString role() const;
    QString name() const;
    QRect rectangle() const;
    QString text() const;
    bool isShowing() const;
    bool isFocused() const;
    bool isSelected() const;
    std::vector<Accessible> children() const;
    /** One of the children, counted from 0; does not ask for the others. */
    Accessible child(int position) const;

    /**
     * The first descendant with this role and name that is showing together with all parts around it. Lists, tables
     * and trees are not searched because they may be long; go through their children instead.
     */
    std::optional<Accessible> find(const QString& role, const QString& name) const;
    /** The showing parts below this one, one line for each, for failure messages. */
    QString describe(int depth = 0) const;

private:
    QList<QVariant> call(const QString& interface, const QString& method, const QList<QVariant>& arguments = {}) const;
    bool hasState(unsigned bit) const;

    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
};

} // namespace morvane::test
