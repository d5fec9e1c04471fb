// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The copy shortcut for a widget that has none: your own handler defines what is copied.

#include "ui/qt/util/CopyHandlerAbstract.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QVBoxLayout>

//! [handler]
class ListCopyHandler : public morvane::ui::CopyHandlerAbstract
{
public:
    // Watches the list, which owns it.
    explicit ListCopyHandler(QListWidget& list) : CopyHandlerAbstract(list), m_list(list) {}

    void copyToClipboard() override
    {
        QStringList lines;
        for (const QListWidgetItem* const item : m_list.selectedItems()) {
            lines.append("- " + item->text());
        }
        QApplication::clipboard()->setText(lines.join('\n'));
    }

private:
    QListWidget& m_list;
};
//! [handler]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const list = new QListWidget;
    list->addItems({"Inlet", "Outlet", "Bypass"});
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    new ListCopyHandler(*list);

    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(list);
    window.setWindowTitle("Select, copy, paste elsewhere");
    window.resize(320, 160);
    window.show();
    return QApplication::exec();
}
