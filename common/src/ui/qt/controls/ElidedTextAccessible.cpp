#include "ui/qt/controls/ElidedTextAccessible_p.h"

#include "ui/qt/controls/ElidedTextLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

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
    ElidedTextLabel& m_label; // Qt drops the interface with its object
};

QAccessibleInterface* make(const QString& className, QObject* object)
{
    auto* const label =
        className == QLatin1String("ElidedTextLabel") ? qobject_cast<ElidedTextLabel*>(object) : nullptr;
    return label ? new ElidedTextAccessible(*label) : nullptr;
}

/** Takes the function back when the library is unloaded from a running application, as with a plugin. */
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
