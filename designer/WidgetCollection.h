// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/** The entry point of the plugin: the collection of Morvane's widgets. */
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    WidgetCollection();
    ~WidgetCollection() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};
