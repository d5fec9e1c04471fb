// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/EntryMatcher_p.h"

#include <QAbstractProxyModel>

#include <vector>

namespace morvane::ui {

/**
 * The top-level entries of a model that fit a text as EntryMatcher says. For a completer that offers all entries of its
 * model, because QCompleter cannot compare words.
 *
 * When a text begins with the one before it, only the entries that fitted that one are searched.
 */
class AutoFilterModel : public QAbstractProxyModel
{
public:
    /** What is compared. */
    struct Search
    {
        EntryMatching matching;
        int column = 0;
        int role = Qt::EditRole;
        Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive;

        bool operator==(const Search& other) const
        {
            return matching == other.matching && column == other.column && role == other.role &&
                   sensitivity == other.sensitivity;
        }
    };

    AutoFilterModel();
    ~AutoFilterModel() override;

    void setSourceModel(QAbstractItemModel* model) override;
    /** Shows the entries that fit the text; all for an empty one. */
    void filter(const QString& text, const Search& search);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;

private:
    struct Level
    {
        QString text;
        std::vector<int> rows;
    };

    void followSource();
    void addLevel();
    std::vector<int> matchingRows(const std::vector<int>* among) const;
    const std::vector<int>* rows() const { return m_levels.empty() ? nullptr : &m_levels.back().rows; }

    QString m_text;
    Search m_search;
    // The results for the text and for texts with which it begins, the shortest first. Without any, all rows are shown.
    std::vector<Level> m_levels;
    std::vector<QMetaObject::Connection> m_connections;
};

} // namespace morvane::ui
