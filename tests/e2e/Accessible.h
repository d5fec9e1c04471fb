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
 * A part of another program as assistive technology sees it: what it is, what it is called, where it is. Asked over the
 * accessibility bus at each call; parts that are gone have no name, no rectangle and no children.
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
    /** One of them, counted from 0, without asking for all. */
    Accessible child(int position) const;

    /**
     * The first part below this one of that role and name that is showing, and all around it. Lists, tables and trees
     * are not searched: they may be long; go through their children.
     */
    std::optional<Accessible> find(const QString& role, const QString& name) const;
    /** What shows below this one, a line a part, for a failure's message. */
    QString describe(int depth = 0) const;

private:
    QList<QVariant> call(const QString& interface, const QString& method, const QList<QVariant>& arguments = {}) const;
    bool hasState(unsigned bit) const;

    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
};

} // namespace morvane::test
