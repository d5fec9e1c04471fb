// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "WidgetEntry.h"

#include <QIcon>

#include <utility>

namespace {

QString firstObjectName(const QString& className)
{
    QString name = className.section(QLatin1String("::"), -1);
    name[0] = name.at(0).toLower();
    return name;
}

} // namespace

WidgetEntry::WidgetEntry(WidgetDescription description, QObject* parent)
    : QObject(parent), m_description(std::move(description))
{
}

WidgetEntry::~WidgetEntry() = default;

QIcon WidgetEntry::icon() const
{
    return QIcon(QStringLiteral(":/morvane/designer/%1.png").arg(m_description.icon));
}

QString WidgetEntry::domXml() const
{
    static const QString form = QStringLiteral(R"(<ui language="c++" displayname="%9">
 <widget class="%1" name="%2">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>
  </property>%5
 </widget>
 <customwidgets>
  <customwidget>
   <class>%1</class>
   <extends>%6</extends>
   <header>%7</header>
   <propertyspecifications>%8</propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)");
    const WidgetDescription& widget = m_description;
    return form.arg(widget.className, firstObjectName(widget.className), QString::number(widget.size.width()),
        QString::number(widget.size.height()), widget.properties, widget.extends, widget.header, widget.specifications,
        widget.toolTip);
}
