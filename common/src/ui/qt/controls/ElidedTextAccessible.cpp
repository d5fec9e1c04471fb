// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ElidedTextAccessible_p.h"

#include "ui/qt/controls/ElidedTextLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

namespace morvane::ui {

namespace {

class ElidedTextAccessible : public QAccessibleWidget
{
public:
    explicit ElidedTextAccessible(ElidedTextLabel& label)
        : QAccessibleWidget(&label, QAccessible::StaticText), m_label(label)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_label.accessibleName().isEmpty()) {
            return m_label.text();
        }
        return QAccessibleWidget::text(kind);
    }

private:
    ElidedTextLabel& m_label; // Qt deletes the interface together with its object
};

QAccessibleInterface* make(const QString& className, QObject* object)
{
    auto* const label =
        className == QLatin1String("ElidedTextLabel") ? qobject_cast<ElidedTextLabel*>(object) : nullptr;
    return label ? new ElidedTextAccessible(*label) : nullptr;
}

/** Removes the factory when the library is unloaded before the application ends, for instance as part of a plugin. */
class Installation
{
public:
    Installation() { QAccessible::installFactory(make); }
    ~Installation()
    {
        if (QCoreApplication::instance()) {
            QAccessible::removeFactory(make);
        }
    }
    Installation(const Installation&) = delete;
    Installation& operator=(const Installation&) = delete;
};

} // namespace

void installElidedTextAccessible()
{
    static const Installation installation;
}

} // namespace morvane::ui
