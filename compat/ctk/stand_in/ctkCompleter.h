// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCompleter>

#include <memory>

namespace morvane::compat {

class WordStartModel;

/**
 * Stand-in for CTK's completer of the same name. Has the members that Morvane uses: a QCompleter that can also offer
 * the entries in which the typed text begins a word. The namespace distinguishes the two classes if a host links CTK,
 * too.
 *
 * The typed text is plain text in all three modes, never a pattern. A change of the case sensitivity, of the mode or of
 * the model takes effect at once in completionModel().
 *
 * Initially it is case sensitive, with popup completion and FilterStartsWith. As with QCompleter, the caller owns the
 * model, unless its parent is the completer; then it is deleted with the completer, or when another model replaces it.
 */
class ctkCompleter : public QCompleter
{
    Q_OBJECT
    Q_PROPERTY(ModelFiltering modelFiltering READ modelFiltering WRITE setModelFiltering)

public:
    enum ModelFiltering
    {
        FilterStartsWith = 0, ///< entries that begin with the text
        FilterContains = 1,   ///< entries that contain the text anywhere
        FilterWordStartsWith =
            2 ///< entries with the text at their start, or not after a letter, mark, digit or underscore
    };
    Q_ENUM(ModelFiltering)

    explicit ctkCompleter(QObject* parent = nullptr);
    explicit ctkCompleter(QAbstractItemModel* model, QObject* parent = nullptr);
    explicit ctkCompleter(const QStringList& completions, QObject* parent = nullptr);
    ~ctkCompleter() override;

    ModelFiltering modelFiltering() const { return m_filtering; }
    void setModelFiltering(ModelFiltering filtering);

    /** The model with all entries; null if there is none. QCompleter::model() may return a proxy of it. */
    QAbstractItemModel* sourceModel() const;

    /** Sets the model; null for none. Use this instead of QCompleter::setModel(). */
    void setSourceModel(QAbstractItemModel* model);

private:
    void followCaseSensitivity();
    void replaceModel(QAbstractItemModel* model);

    ModelFiltering m_filtering = FilterStartsWith;
    Qt::CaseSensitivity m_filteredWith = Qt::CaseSensitive;
    std::unique_ptr<WordStartModel> m_wordStarts;
};

} // namespace morvane::compat
