// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

/** The description of one widget for Qt Designer. */
struct WidgetDescription
{
    QString className; ///< with namespace
    QString extends;   ///< the base class for uic and Designer
    QString header;
    QString icon; ///< file name in the resources, without directory and extension
    QString toolTip;
    QString whatsThis;
    QSize size;             ///< initial size of a new widget, in device-independent pixels
    QString properties;     ///< further initial properties, as XML of a form
    QString specifications; ///< how text properties are edited, as XML of a form
    std::function<QWidget*(QWidget* parent)> create;
};

/** One widget in Designer's widget box, and in forms that are loaded at run time. */
class WidgetEntry : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetEntry(WidgetDescription description, QObject* parent);
    ~WidgetEntry() override;

    QString name() const override { return m_description.className; }
    QString group() const override { return QStringLiteral("Morvane"); }
    QString toolTip() const override { return m_description.toolTip; }
    QString whatsThis() const override { return m_description.whatsThis; }
    QString includeFile() const override { return m_description.header; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override { return m_description.create(parent); }
    QString domXml() const override;

private:
    const WidgetDescription m_description;
};
