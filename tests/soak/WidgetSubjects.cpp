// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "soak/Subject.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/OverrideCursor.h"
#include "ui/qt/util/OverrideCursorRestorer.h"
#include "ui/qt/util/TableCopyHandler.h"
#include "ui/qt/util/TablePasteHandler.h"
#include "ui/qt/util/WheelGuard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCommandLinkButton>
#include <QCompleter>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QUndoStack>

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
