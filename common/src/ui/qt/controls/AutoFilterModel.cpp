// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterModel_p.h"

#include <algorithm>

namespace morvane::ui {

namespace {

/** Each may have as many rows as the model. */
constexpr std::size_t mostLevels = 8;

bool isContained(const EntryMatcher& matcher, const QVariant& data)
{
    if (data.userType() == QMetaType::QString) {
        return matcher.isContainedIn(*static_cast<const QString*>(data.constData()));
    }
    return matcher.isContainedIn(data.toString());
}

/** Whether entries that contain the text also contain what it begins with. Half of a character finds nothing. */
bool isPartOf(const QString& text, const QString& beginning)
{
    return text.startsWith(beginning) && !beginning.at(beginning.size() - 1).isSurrogate();
}

} // namespace

AutoFilterModel::AutoFilterModel() = default;

AutoFilterModel::~AutoFilterModel() = default;

void AutoFilterModel::setSourceModel(QAbstractItemModel* model)
{
    if (model == sourceModel()) {
        return;
    }
    beginResetModel();
    for (const QMetaObject::Connection& connection : m_connections) {
        disconnect(connection);
    }
    m_connections.clear();
    m_levels.clear();
    m_text.clear();
    QAbstractProxyModel::setSourceModel(model);
    if (model) {
        followSource();
    }
    endResetModel();
}

void AutoFilterModel::followSource()
{
    const auto filterAgain = [this] {
        beginResetModel();
        m_levels.clear();
        addLevel();
        endResetModel();
    };
    const QAbstractItemModel* const model = sourceModel();
    using Model = QAbstractItemModel;
    m_connections = {connect(model, &Model::modelReset, this, filterAgain),
        connect(model, &Model::layoutChanged, this, filterAgain),
        connect(model, &Model::dataChanged, this, filterAgain), connect(model, &Model::rowsInserted, this, filterAgain),
        connect(model, &Model::rowsRemoved, this, filterAgain), connect(model, &Model::rowsMoved, this, filterAgain),
        connect(model, &Model::columnsInserted, this, filterAgain),
        connect(model, &Model::columnsRemoved, this, filterAgain),
        connect(model, &Model::columnsMoved, this, filterAgain),
        connect(model, &QObject::destroyed, this, filterAgain)};
}

void AutoFilterModel::filter(const QString& text, const Search& search)
{
    if (text == m_text && search == m_search) {
        return;
    }
    beginResetModel();
    if (!(search == m_search)) {
        m_search = search;
        m_levels.clear();
    }
    m_text = text;
    while (!m_levels.empty() && !isPartOf(text, m_levels.back().text)) {
        m_levels.pop_back();
    }
    addLevel();
    endResetModel();
}

void AutoFilterModel::addLevel()
{
    // There is no model after it was destroyed.
    if (!sourceModel() || m_text.isEmpty() || (!m_levels.empty() && m_levels.back().text == m_text)) {
        return;
    }
    std::vector<int> found = matchingRows(rows());
    if (m_levels.size() == mostLevels) {
        // The shortest texts have the longest results, but going back to them costs most.
        m_levels.erase(m_levels.begin() + 1);
    }
    m_levels.push_back({m_text, std::move(found)});
}

std::vector<int> AutoFilterModel::matchingRows(const std::vector<int>* among) const
{
    const EntryMatcher matcher(m_text, m_search.matching, m_search.sensitivity);
    const QAbstractItemModel& model = *sourceModel();
    std::vector<int> found;
    const auto look = [&](int row) {
        const QModelIndex entry = model.index(row, m_search.column);
        // As in QCompleter, what cannot be selected is not offered.
        if (isContained(matcher, model.data(entry, m_search.role)) && (model.flags(entry) & Qt::ItemIsSelectable)) {
            found.push_back(row);
        }
    };
    if (among) {
        std::for_each(among->begin(), among->end(), look);
    } else {
        const int count = model.rowCount();
        for (int row = 0; row < count; ++row) {
            look(row);
        }
    }
    return found;
}

QModelIndex AutoFilterModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex AutoFilterModel::parent(const QModelIndex&) const
{
    return {};
}

int AutoFilterModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !sourceModel()) {
        return 0;
    }
    return rows() ? static_cast<int>(rows()->size()) : sourceModel()->rowCount();
}

int AutoFilterModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !sourceModel() ? 0 : sourceModel()->columnCount();
}

QModelIndex AutoFilterModel::mapToSource(const QModelIndex& index) const
{
    if (!index.isValid() || !sourceModel() || index.row() >= rowCount()) {
        return {};
    }
    const int row = rows() ? (*rows())[static_cast<std::size_t>(index.row())] : index.row();
    return sourceModel()->index(row, index.column());
}

QModelIndex AutoFilterModel::mapFromSource(const QModelIndex& index) const
{
    if (!index.isValid() || index.parent().isValid()) {
        return {};
    }
    if (!rows()) {
        return createIndex(index.row(), index.column());
    }
    const auto place = std::lower_bound(rows()->begin(), rows()->end(), index.row());
    const bool isShown = place != rows()->end() && *place == index.row();
    return isShown ? createIndex(static_cast<int>(place - rows()->begin()), index.column()) : QModelIndex();
}

} // namespace morvane::ui
