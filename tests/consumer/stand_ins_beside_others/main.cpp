// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Uses both labels and both completers in one process, and in one source.
#include <ctkCompleter.h>
#include <QxtLabel>

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/ElidedTextLabel.h"

#include <QApplication>
#include <QLineEdit>
#include <QMetaType>

#include <cstdio>

using namespace morvane::ui;

static_assert(!std::is_base_of<QxtLabel, ElidedTextLabel>::value, "the base has a name of its own");
static_assert(std::is_base_of<ElidedTextLabel::QxtLabel, ElidedTextLabel>::value, "which the class knows");

namespace {

int failures = 0;

void expect(bool holds, const char* what)
{
    if (!holds) {
        std::printf("not so: %s\n", what);
        ++failures;
    }
}

void bothLabelsWork()
{
    QWidget window;
    auto* const theirs = new QxtLabel("theirs", &window);
    auto* const ours = new ElidedTextLabel(&window);
    ours->setText("measurements/pressure.dat");
    ours->resize(ours->sizeHint().width() / 2, ours->sizeHint().height());
    window.grab();
    theirs->setText("changed");
    expect(theirs->text() == "changed" && theirs->sizeHint().isValid(), "their label works");
    expect(ours->text() == "measurements/pressure.dat" && ours->toolTip() == ours->text(), "our label works");
    expect(window.findChildren<QxtLabel*>() == QList<QxtLabel*>{theirs}, "only theirs is found as theirs");
    expect(window.findChildren<ElidedTextLabel::QxtLabel*>().size() == 1, "only ours is found as ours");
}

void noLabelIsTakenForTheOther()
{
    ElidedTextLabel label;
    QObject* const object = &label;
    expect(!qobject_cast<QxtLabel*>(object), "qobject_cast tells the labels apart");
    expect(!dynamic_cast<QxtLabel*>(object), "dynamic_cast tells the labels apart");
    expect(!object->inherits("QxtLabel"), "inherits() tells the labels apart");
    expect(qRegisterMetaType<QxtLabel*>() != qRegisterMetaType<ElidedTextLabel::QxtLabel*>(),
        "the meta-type system tells the labels apart");
    expect(label.property("rotation").toInt() == 0 && label.setProperty("rotation", 90), "enumerations do not collide");
}

void styleSheetsSelectOneOfThem()
{
    QWidget window;
    auto* const theirs = new QxtLabel("theirs", &window);
    auto* const ours = new ElidedTextLabel(&window);
    window.setStyleSheet(
        "QxtLabel { qproperty-text: \"styled theirs\"; } ElidedTextLabel { qproperty-text: \"styled ours\"; }");
    window.ensurePolished();
    theirs->ensurePolished();
    ours->ensurePolished();
    expect(theirs->text() == "styled theirs", "a style sheet selects their label");
    expect(ours->text() == "styled ours", "a style sheet selects our label");
}

void bothCompletersWork()
{
    ctkCompleter theirs(QStringList{"Bar", "Car", "Dog"});
    theirs.setModelFiltering(ctkCompleter::FilterContains);
    theirs.setCompletionPrefix("ar");
    expect(theirs.completionCount() == 2, "their completer works");

    ComboBoxAutoFilter box(nullptr);
    box.setList({"Bar", "Car", "Dog"});
    box.setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    QCompleter* const ours = box.completer();
    ours->setCompletionPrefix("ar");
    expect(ours->completionCount() == 2, "our completer works");
    expect(ours->property("modelFiltering").toInt() == 1, "enumerations do not collide");
    expect(!qobject_cast<ctkCompleter*>(ours), "qobject_cast tells the completers apart");
    expect(!dynamic_cast<ctkCompleter*>(ours), "dynamic_cast tells the completers apart");
    expect(!ours->inherits("ctkCompleter"), "inherits() tells the completers apart");

    box.lineEdit()->setCompleter(&theirs);
    expect(box.lineEdit()->completer() == &theirs, "a host may give the line their completer");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    bothLabelsWork();
    noLabelIsTakenForTheOther();
    styleSheetsSelectOneOfThem();
    bothCompletersWork();
    return failures;
}
