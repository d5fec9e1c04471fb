// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/OpenFileDialog.h"

#include "tour/TourWorkspace.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QTreeView>

#include <algorithm>
#include <memory>

namespace gallery::tour {

namespace {

QAbstractButton& buttonWithRole(const QFileDialog& dialog, QDialogButtonBox::ButtonRole role)
{
    const auto& box = *dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    const auto buttons = box.buttons();
    return **std::find_if(
        buttons.begin(), buttons.end(), [&](QAbstractButton* button) { return box.buttonRole(button) == role; });
}

} // namespace

QLineEdit& OpenFileDialog::name() const
{
    return *dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QComboBox& OpenFileDialog::type() const
{
    return *dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

QAbstractItemView& OpenFileDialog::view() const
{
    auto* const list = dialog->findChild<QListView*>(QStringLiteral("listView"));
    auto* const tree = dialog->findChild<QTreeView*>(QStringLiteral("treeView"));
    return list->isVisible() ? static_cast<QAbstractItemView&>(*list) : *tree;
}

QAbstractButton& OpenFileDialog::acceptButton() const
{
    return buttonWithRole(*dialog, QDialogButtonBox::AcceptRole);
}

QAbstractButton& OpenFileDialog::helpButton() const
{
    return buttonWithRole(*dialog, QDialogButtonBox::HelpRole);
}

QWidget& OpenFileDialog::acceptMenuArrow() const
{
    return *dialog->findChild<QWidget*>(QStringLiteral("acceptMenuArrow"));
}

QAbstractButton* OpenFileDialog::control(const QString& text) const
{
    const auto buttons = dialog->findChildren<QAbstractButton*>();
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [&](QAbstractButton* button) { return button->text() == text; });
    return found == buttons.end() ? nullptr : *found;
}

QModelIndex OpenFileDialog::find(const QString& fileName) const
{
    const QModelIndex root = view().rootIndex();
    for (int row = 0; row < root.model()->rowCount(root); ++row) {
        const QModelIndex index = root.model()->index(row, 0, root);
        if (index.data().toString() == fileName && !view().visualRect(index).isEmpty()) {
            return index;
        }
    }
    return QModelIndex();
}

QString OpenFileDialog::names() const
{
    QStringList names;
    const QModelIndex root = view().rootIndex();
    for (int row = 0; root.isValid() && row < root.model()->rowCount(root); ++row) {
        names.append(root.model()->index(row, 0, root).data().toString());
    }
    return names.join(QLatin1Char(' '));
}

QString expectListed(const QString& names)
{
    const OpenFileDialog open;
    if (!open) {
        return QStringLiteral("the dialog is not open");
    }
    return expect(open.names() == names, QStringLiteral("the dialog lists \"%1\"").arg(open.names()));
}

QString expectClosed()
{
    return expect(!QApplication::activeModalWidget(), "a dialog is still open");
}

void enterName(const QString& name)
{
    type(OpenFileDialog().name(), name);
    press(OpenFileDialog().name(), Qt::Key_Return);
}

TourStep helpStep(const TourWorkspace& workspace, const QString& name, const QString& page)
{
    const auto before = std::make_shared<int>(0);
    return {name,
        [&workspace, before] {
            *before = workspace.openedPages();
            click(OpenFileDialog().helpButton());
        },
        [&workspace, before, page] {
            const QFileInfo opened(workspace.openedPage());
            return expect(workspace.openedPages() == *before + 1 && opened.isFile() && opened.fileName() == page,
                QStringLiteral("opened \"%1\"").arg(workspace.openedPage()));
        }};
}

void pickNextType()
{
    press(OpenFileDialog().type(), Qt::Key_Down);
}

TourStep cancelStep(const QString& name)
{
    return {name, [] { press(OpenFileDialog().name(), Qt::Key_Escape); }, expectClosed};
}

bool canDriveNativeDialog()
{
    return QGuiApplication::platformName() != QLatin1String("windows");
}

} // namespace gallery::tour
