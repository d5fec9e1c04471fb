// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

#include <memory>

namespace {

using morvane::ui::ComboBoxAutoFilter;
using morvane::ui::CorrectFontCommandLinkButton;
using morvane::ui::Integral64SpinBox;
using morvane::ui::IntegralSpinBox;
using morvane::ui::QScientificSpinBox;

QString pluginFile()
{
    return QStringLiteral(DESIGNER_PLUGIN);
}

std::unique_ptr<QWidget> load(QIODevice& form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(pluginFile()).path());
    std::unique_ptr<QWidget> window(loader.load(&form));
    EXPECT_TRUE(window) << loader.errorString().toStdString();
    return window;
}

class DesignerPluginForm : public ::testing::Test
{
protected:
    DesignerPluginForm()
    {
        QFile file(QStringLiteral(DESIGNER_FORM));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        window = load(file);
    }

    // Uses the C++ type, because the command link has no meta-object of its own.
    template <typename Widget>
    Widget* find(const char* name)
    {
        auto* const widget = dynamic_cast<Widget*>(window->findChild<QWidget*>(QLatin1String(name)));
        EXPECT_TRUE(widget) << name << " is missing or of another type";
        return widget;
    }

    std::unique_ptr<QWidget> window;
};

TEST_F(DesignerPluginForm, hasAComboBoxThatFiltersItsEntries)
{
    auto* const box = find<ComboBoxAutoFilter>("substance");
    ASSERT_TRUE(box);
    EXPECT_EQ(box->count(), 3);
    EXPECT_TRUE(box->isFiltering());
    EXPECT_EQ(box->editMode(), ComboBoxAutoFilter::FormField);
    ASSERT_TRUE(box->completer());
    box->completer()->setCompletionPrefix("ene");
    EXPECT_EQ(box->completer()->completionCount(), 1);
    EXPECT_EQ(box->completer()->currentCompletion(), "Benzene");
    EXPECT_TRUE(box->isMatchingWords() && box->isIgnoringAccents() && box->isMatchShown());
    box->completer()->setCompletionPrefix("zene ben");
    EXPECT_EQ(box->completer()->completionCount(), 1);
}

TEST_F(DesignerPluginForm, hasAScientificSpinBoxWithNumbersThatDoublesInFormsCannotHold)
{
    auto* const current = find<QScientificSpinBox>("current");
    ASSERT_TRUE(current);
    EXPECT_EQ(current->minimum(), 1e-18);
    EXPECT_EQ(current->maximum(), 1e-6);
    EXPECT_EQ(current->value(), 2.5e-15);
    EXPECT_EQ(current->decimals(), 4);
    EXPECT_EQ(current->text(), "2.5E-15 A");
    EXPECT_TRUE(current->hasOwnValidation());
}

TEST_F(DesignerPluginForm, hasAnIntegerSpinBoxWhoseStepsCanBeTaken)
{
    auto* const samples = find<IntegralSpinBox>("samples");
    ASSERT_TRUE(samples);
    EXPECT_EQ(samples->minimum(), 1);
    EXPECT_EQ(samples->maximum(), 65536);
    int steps = 0;
    samples->signalIncrement.connect([&steps] { ++steps; });
    QTest::keyClick(samples, Qt::Key_Up);
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(samples->value(), 1024);
}

TEST_F(DesignerPluginForm, hasAScientificSpinBoxInAnotherNotationAndLanguage)
{
    auto* const offset = find<QScientificSpinBox>("offset");
    ASSERT_TRUE(offset);
    EXPECT_EQ(offset->notation(), QScientificSpinBox::SiPrefix);
    EXPECT_EQ(offset->numberLocale(), QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(offset->stepMode(), QScientificSpinBox::OneTwoFive);
    EXPECT_TRUE(offset->isRefusalShown());
    EXPECT_EQ(offset->value(), 4.7e-6);
    EXPECT_EQ(offset->text(), QStringLiteral("4,7 \u00b5V"));
}

TEST_F(DesignerPluginForm, hasAnIntegerSpinBoxOf64Bits)
{
    auto* const address = find<Integral64SpinBox>("address");
    ASSERT_TRUE(address);
    EXPECT_EQ(address->maximum(), 9223372036854775807);
    EXPECT_EQ(address->value(), 0xdeadbeef0000);
    EXPECT_EQ(address->text(), "0xDEAD_BEEF_0000");
}

TEST_F(DesignerPluginForm, hasALabelThatElidesWhereTheFormSaysAndCanBeCopied)
{
    auto* const file = find<ElidedTextLabel>("file");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->text(), "/projects/turbine/measurements/2026-03-12/run-17.dat");
    EXPECT_EQ(file->elideMode(), Qt::ElideMiddle);
    EXPECT_TRUE(file->isCopyable());
}

TEST_F(DesignerPluginForm, hasACommandLinkThatKeepsItsSize)
{
    auto* const start = find<CorrectFontCommandLinkButton>("start");
    ASSERT_TRUE(start);
    EXPECT_EQ(start->text(), "S&tart");
    EXPECT_EQ(start->description(), "Measures with these settings.");
    EXPECT_EQ(start->minimumSizeHint(), static_cast<QWidget*>(start)->sizeHint());
}

// What dropping it on a form does.
TEST(DesignerPluginSpinBox, validatesByItselfAndCanBeToldNotTo)
{
    QPluginLoader plugin(pluginFile());
    auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    ASSERT_TRUE(collection) << plugin.errorString().toStdString();
    QBuffer form;
    form.setData(collection->customWidgets().at(1)->domXml().toUtf8());
    ASSERT_TRUE(form.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> widget = load(form);
    auto* const spinBox = dynamic_cast<QScientificSpinBox*>(widget.get());
    ASSERT_TRUE(spinBox);
    EXPECT_TRUE(spinBox->hasOwnValidation());
    EXPECT_TRUE(spinBox->setProperty("ownValidation", false));
    EXPECT_FALSE(spinBox->hasOwnValidation());
}

std::string lastPart(const ::testing::TestParamInfo<int>& info)
{
    static const char* const names[] = {
        "comboBox", "scientificSpinBox", "integralSpinBox", "elidedLabel", "commandLink", "integral64SpinBox"};
    return names[info.param];
}

class DesignerPluginWidget : public ::testing::TestWithParam<int>
{
protected:
    DesignerPluginWidget()
    {
        auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
        EXPECT_TRUE(collection) << plugin.errorString().toStdString();
        if (collection) {
            EXPECT_EQ(collection->customWidgets().size(), 6);
            entry = collection->customWidgets().value(GetParam());
        }
    }

    QPluginLoader plugin{pluginFile()};
    QDesignerCustomWidgetInterface* entry = nullptr;
};

TEST_P(DesignerPluginWidget, isDescribedForTheWidgetBox)
{
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->group(), "Morvane");
    EXPECT_FALSE(entry->toolTip().isEmpty());
    EXPECT_FALSE(entry->whatsThis().isEmpty());
    EXPECT_FALSE(entry->isContainer());
    EXPECT_TRUE(entry->includeFile().endsWith('/' + entry->name().section("::", -1) + ".h"));
    EXPECT_FALSE(entry->icon().pixmap(24, 24).isNull());
}

// What dropping it on a form does.
TEST_P(DesignerPluginWidget, comesOutOfItsOwnDescriptionWithASizeThatShowsItWhole)
{
    ASSERT_TRUE(entry);
    const QByteArray description = entry->domXml().toUtf8();
    QBuffer form;
    form.setData(description);
    ASSERT_TRUE(form.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> widget = load(form);
    ASSERT_TRUE(widget);
    EXPECT_FALSE(widget->objectName().isEmpty());
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
    EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
}

TEST(DesignerPluginComboBox, isAFieldOfAForm)
{
    QPluginLoader plugin(pluginFile());
    const auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    ASSERT_TRUE(collection);
    QByteArray description = collection->customWidgets().at(0)->domXml().toUtf8();
    const auto made = [](QByteArray& xml) {
        QBuffer form(&xml);
        EXPECT_TRUE(form.open(QIODevice::ReadOnly));
        return load(form);
    };
    const auto isField = [](const std::unique_ptr<QWidget>& widget) {
        const auto* const box = dynamic_cast<ComboBoxAutoFilter*>(widget.get());
        return box && box->editMode() == ComboBoxAutoFilter::FormField;
    };
    EXPECT_TRUE(isField(made(description)));
    description.replace("FormField", "SingleEdit");
    EXPECT_FALSE(isField(made(description))) << "the property decides";
}

// Designer's property editor offers the names of an enumeration.
TEST(DesignerPluginComboBox, offersItsModesByName)
{
    const QMetaObject& type = ComboBoxAutoFilter::staticMetaObject;
    const QMetaProperty mode = type.property(type.indexOfProperty("editMode"));
    EXPECT_TRUE(mode.isWritable() && mode.isDesignable() && mode.isStored() && mode.isEnumType());
    EXPECT_EQ(QByteArray(mode.enumerator().valueToKeys(ComboBoxAutoFilter::FormField)), "FormField");
}

TEST_P(DesignerPluginWidget, isMadeWithTheParentThatIsGiven)
{
    ASSERT_TRUE(entry);
    QWidget form;
    EXPECT_EQ(entry->createWidget(&form)->parentWidget(), &form);
}

// Designer writes the class name of the meta-object into the form.
TEST_P(DesignerPluginWidget, hasAMetaObjectOfItsOwnName)
{
    ASSERT_TRUE(entry);
    QWidget form;
    EXPECT_EQ(QLatin1String(entry->createWidget(&form)->metaObject()->className()), entry->name());
}

INSTANTIATE_TEST_SUITE_P(Plugin, DesignerPluginWidget, ::testing::Range(0, 6), lastPart);

} // namespace
