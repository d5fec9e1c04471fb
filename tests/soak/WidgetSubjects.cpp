// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"
#include "soak/Subject.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"
#include "ui/qt/util/PropertyAdapter.h"
#include "ui/qt/util/TableCopyHandler.h"
#include "ui/qt/util/TablePasteHandler.h"
#include "ui/qt/util/WheelGuard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCommandLinkButton>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QUndoStack>

#include <boost/make_shared.hpp>

namespace morvane::test {

namespace {

using namespace morvane::ui;

template <typename Widget>
void showWidget(Widget& widget)
{
    widget.show();
    QCoreApplication::processEvents();
    widget.hide();
}

void filterComboBox(QWidget& parent)
{
    ComboBoxAutoFilter box(&parent);
    box.addItems({"one", "two", "three"});
    box.show();
    box.showPopup();
    QCoreApplication::processEvents();
    box.hidePopup();
}

template <typename Widget>
void showOne(QWidget& parent)
{
    Widget widget(&parent);
    showWidget(widget);
}

void showPrefixes(QWidget& parent)
{
    QScientificSpinBox spinBox(&parent);
    spinBox.setNotation(QScientificSpinBox::SiPrefix);
    spinBox.setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    spinBox.setRefusalShown(true);
    spinBox.setSuffix(QStringLiteral("V"));
    showWidget(spinBox);
}

void pressKey(QWidget& widget, Qt::Key key, const QString& text = QString())
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
}

/** Types a number that is accepted and one that is not, and steps in every mode. */
void typeNumbers(QWidget& parent)
{
    QScientificSpinBox spinBox(&parent);
    spinBox.setNotation(QScientificSpinBox::SiPrefix);
    spinBox.setSuffix(QStringLiteral("V"));
    spinBox.setRefusalShown(true);
    spinBox.setRange(-1000, 1000);
    spinBox.show();
    for (const char* const text : {"4.7u", "1,5,", "99G"}) {
        spinBox.selectAll();
        for (const char* character = text; *character != '\0'; ++character) {
            pressKey(spinBox, Qt::Key_unknown, QString(QLatin1Char(*character)));
        }
        pressKey(spinBox, Qt::Key_Return);
    }
    for (const auto mode : {QScientificSpinBox::Linear, QScientificSpinBox::Decade, QScientificSpinBox::OneTwoFive,
             QScientificSpinBox::LastDigit}) {
        spinBox.setStepMode(mode);
        pressKey(spinBox, Qt::Key_Up);
        pressKey(spinBox, Qt::Key_Down);
    }
    QCoreApplication::processEvents();
}

/** The same for a number of 64 bits, in each base. */
void typeIntegers(QWidget& parent)
{
    Integral64SpinBox spinBox(&parent);
    spinBox.setGroupSeparator(QStringLiteral("_"));
    spinBox.show();
    for (const auto base : {Integral64SpinBox::Decimal, Integral64SpinBox::Hexadecimal, Integral64SpinBox::Binary,
             Integral64SpinBox::Octal}) {
        spinBox.setBase(base);
        spinBox.selectAll();
        for (const char* const digit : {"1", "0", "1", "1", "0", "x"}) {
            pressKey(spinBox, Qt::Key_unknown, QString::fromLatin1(digit));
        }
        pressKey(spinBox, Qt::Key_Return);
        pressKey(spinBox, Qt::Key_Up);
    }
    QCoreApplication::processEvents();
}

void bindProperty(QWidget& parent)
{
    const auto value = boost::make_shared<Property<std::string>>("a");
    QLineEdit edit(&parent);
    PropertyAdapter adapter(value);
    adapter.bindTo(&edit);
    edit.setText(QStringLiteral("b"));
    value->setValue("c");
}

void showGuardedForm(QWidget& parent)
{
    QWidget form(&parent);
    new IntegralSpinBox(&form);
    guardWheel(form);
    showWidget(form);
}

void elideText(QWidget& parent)
{
    ElidedTextLabel label(&parent);
    label.setText(QString(300, QLatin1Char('x')));
    showWidget(label);
}

void showLinkButton(QWidget& parent)
{
    CorrectFontCommandLinkButton button(&parent);
    button.setText(QStringLiteral("Text"));
    showWidget(button);
}

void showStockLinkButton(QWidget& parent)
{
    QCommandLinkButton button(&parent);
    button.setText(QStringLiteral("Text"));
    showWidget(button);
}

void copyTable(QWidget& parent)
{
    QStandardItemModel model(20, 4);
    QTableView view(&parent);
    view.setModel(&model);
    auto* const handler = new TableCopyHandler(view);
    showWidget(view);
    view.selectAll();
    handler->copyToClipboard();
}

void pasteBlock(QWidget& parent)
{
    QStandardItemModel model(2, 2);
    QTableView view(&parent);
    view.setModel(&model);
    view.setCurrentIndex(model.index(0, 0));
    QUndoStack stack;
    auto* const handler = new TablePasteHandler(view);
    handler->setAddingRows(true);
    handler->setUndoStack(&stack);
    showWidget(view);
    handler->paste(QStringLiteral("1\t2\n3\t4\n5\t6\n"));
    handler->paste(QStringLiteral("1\t2\t3\n"));
    stack.undo();
    stack.redo();
}

void filterWords(QWidget& parent)
{
    ComboBoxAutoFilter box(&parent);
    box.setMatchingWords(true);
    box.setIgnoringAccents(true);
    box.setMatchShown(true);
    box.addItems({"one", "two three", "four"});
    box.setFiltering(true);
    box.show();
    box.completer()->setCompletionPrefix(QStringLiteral("e t"));
    box.completer()->complete();
    QCoreApplication::processEvents();
    box.completer()->popup()->hide();
}

class LabelCopyHandler : public CopyHandlerAbstract
{
public:
    explicit LabelCopyHandler(ElidedTextLabel& label) : CopyHandlerAbstract(label), m_label(label) {}
    void copyToClipboard() override { QApplication::clipboard()->setText(m_label.text()); }

private:
    ElidedTextLabel& m_label;
};

void copyLabel(QWidget& parent)
{
    ElidedTextLabel label(&parent);
    label.setText(QStringLiteral("Text"));
    new LabelCopyHandler(label);
    showWidget(label);
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&label, &copy);
}

void restoreCursor(QWidget&)
{
    const OverrideCursor cursor(Qt::WaitCursor);
    const OverrideCursorRestorer restorer;
}

} // namespace

std::vector<Subject> widgetSubjects()
{
    return {
        {"ComboBoxAutoFilter", &filterComboBox},
        {"QScientificSpinBox", &showOne<QScientificSpinBox>},
        {"IntegralSpinBox", &showOne<IntegralSpinBox>},
        {"Integral64SpinBox", &showOne<Integral64SpinBox>},
        {"SiPrefixes", &showPrefixes},
        {"SiPrefixes, typed", &typeNumbers},
        {"Integral64SpinBox, typed", &typeIntegers},
        {"PropertyAdapter", &bindProperty},
        {"guardWheel", &showGuardedForm},
        {"ElidedTextLabel", &elideText},
        {"QCommandLinkButton", &showStockLinkButton, nullptr, true},
        {"CorrectFontCommandLinkButton", &showLinkButton, "QCommandLinkButton"},
        {"TableCopyHandler", &copyTable},
        {"TablePasteHandler", &pasteBlock},
        {"ComboBoxAutoFilter, words", &filterWords},
        {"CopyHandlerAbstract", &copyLabel},
        {"OverrideCursor", [](QWidget&) { const OverrideCursor cursor(Qt::WaitCursor); }},
        {"OverrideCursorRestorer", &restoreCursor},
    };
}

} // namespace morvane::test
