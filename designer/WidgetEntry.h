#pragma once

#include <QSize>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

/** What Qt Designer is told about one widget. */
struct WidgetDescription
{
    QString className; ///< with its namespace
    QString extends;   ///< the base that uic and Designer know
    QString header;
    QString icon; ///< file name in the resources, without directory and extension
    QString toolTip;
    QString whatsThis;
    QSize size;             ///< of a widget that was just dropped, in device-independent pixels
    QString properties;     ///< further properties that it starts with, as in a form
    QString specifications; ///< how properties with text are edited, as in a form
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
