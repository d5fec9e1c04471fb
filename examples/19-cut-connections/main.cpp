// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Signals connected to an object that is not a QObject: the object disconnects them. No window appears.

#include "ui/qt/util/QtSignalConnectionCollection.h"

#include <QCoreApplication>
#include <QStringListModel>

#include <iostream>

//! [member]
class RowCounter
{
public:
    explicit RowCounter(const QAbstractItemModel& model)
    {
        m_connections.add(QObject::connect(&model, &QAbstractItemModel::rowsInserted, [this] { tell("added"); }));
        m_connections.add(QObject::connect(&model, &QAbstractItemModel::rowsRemoved, [this] { tell("removed"); }));
    }

private:
    void tell(const char* what) { std::cout << ++m_changes << ". change: rows " << what << '\n'; }

    int m_changes = 0;
    morvane::ui::QtSignalConnectionCollection m_connections; // the last member, so it is destroyed first
};
//! [member]

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QStringListModel model({"T1", "T2"});
    {
        const RowCounter counter(model);
        model.insertRow(2);
        model.removeRows(0, 2);
    }
    model.insertRow(0); // there is no connection any more, so nothing crashes
    std::cout << "rows now: " << model.rowCount() << '\n';
}
