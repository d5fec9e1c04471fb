// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ctkCompleter.h"

#include "WordStartModel_p.h"

namespace morvane::compat {

ctkCompleter::ctkCompleter(QObject* parent) : QCompleter(parent)
{
    followCaseSensitivity();
}

ctkCompleter::ctkCompleter(QAbstractItemModel* model, QObject* parent) : QCompleter(model, parent)
{
    followCaseSensitivity();
}

ctkCompleter::ctkCompleter(const QStringList& completions, QObject* parent) : QCompleter(completions, parent)
{
    followCaseSensitivity();
}

ctkCompleter::~ctkCompleter()
{
    if (m_wordStarts) {
        replaceModel(nullptr);
    }
}

void ctkCompleter::setModelFiltering(ModelFiltering filtering)
{
    if (m_filtering == filtering) {
        return;
    }
    m_filtering = filtering;
    if (filtering == FilterWordStartsWith) {
        m_wordStarts = std::make_unique<WordStartModel>(*this);
        m_wordStarts->setSourceModel(model());
        replaceModel(m_wordStarts.get());
    } else if (m_wordStarts) {
        replaceModel(m_wordStarts->sourceModel());
        m_wordStarts.reset();
    }
    setFilterMode(filtering == FilterStartsWith ? Qt::MatchStartsWith : Qt::MatchContains);
    // QCompleter filters a new model only when the next prefix is set.
    setCompletionPrefix(completionPrefix());
}

QAbstractItemModel* ctkCompleter::sourceModel() const
{
    return m_wordStarts ? m_wordStarts->sourceModel() : model();
}

void ctkCompleter::setSourceModel(QAbstractItemModel* model)
{
    QAbstractItemModel* const old = sourceModel();
    if (old == model) {
        return;
    }
    if (m_wordStarts) {
        m_wordStarts->setSourceModel(model);
        if (old && old->QObject::parent() == this) {
            delete old;
        }
    } else {
        setModel(model);
    }
    setCompletionPrefix(completionPrefix());
}

void ctkCompleter::followCaseSensitivity()
{
    // After such a change QCompleter offers all entries until the next prefix. Only the reset signals this.
    m_filteredWith = caseSensitivity();
    connect(completionModel(), &QAbstractItemModel::modelReset, this, [this] {
        if (m_filteredWith != caseSensitivity()) {
            m_filteredWith = caseSensitivity();
            setCompletionPrefix(completionPrefix());
        }
    });
}

void ctkCompleter::replaceModel(QAbstractItemModel* model)
{
    QAbstractItemModel* const old = this->model();
    // QCompleter deletes a model that it owns when another one replaces it, but this one is still needed.
    const bool isOwn = old && old->QObject::parent() == this;
    if (isOwn) {
        old->setParent(nullptr);
    }
    setModel(model);
    if (isOwn) {
        old->setParent(this);
    }
}

} // namespace morvane::compat
