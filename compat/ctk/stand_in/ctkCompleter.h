#pragma once

#include <QCompleter>

#include <memory>

namespace morvane::compat {

class WordStartModel;

/**
 * Stand-in for CTK's completer of the same name, with the members that Morvane uses: a QCompleter that can also keep
 * the entries in which the typed text begins a word. The namespace keeps the two apart where a host links CTK, too.
 *
 * What is typed is text in all three modes, never a pattern. A change of the case sensitivity, of the mode or of the
 * model shows at once in completionModel().
 *
 * It starts case sensitive, with popup completion and FilterStartsWith. As with QCompleter, the model belongs to the
 * caller unless its parent is the completer; then it is deleted with the completer or when another takes its place.
 */
class ctkCompleter : public QCompleter
{
    Q_OBJECT
    Q_PROPERTY(ModelFiltering modelFiltering READ modelFiltering WRITE setModelFiltering)

public:
    enum ModelFiltering
    {
        FilterStartsWith = 0, ///< entries that begin with the text
        FilterContains = 1,   ///< entries that hold the text anywhere
        FilterWordStartsWith =
            2 ///< entries with the text at their start, or behind no letter, mark, digit or underscore
    };
    Q_ENUM(ModelFiltering)

    explicit ctkCompleter(QObject* parent = nullptr);
    explicit ctkCompleter(QAbstractItemModel* model, QObject* parent = nullptr);
    explicit ctkCompleter(const QStringList& completions, QObject* parent = nullptr);
    ~ctkCompleter() override;

    ModelFiltering modelFiltering() const { return m_filtering; }
    void setModelFiltering(ModelFiltering filtering);

    /** The model with all entries, null if there is none. QCompleter::model() can be another one in between. */
    QAbstractItemModel* sourceModel() const;

    /** Takes entries from another model; null for none. Use this one rather than QCompleter::setModel(). */
    void setSourceModel(QAbstractItemModel* model);

private:
    void followCaseSensitivity();
    void replaceModel(QAbstractItemModel* model);

    ModelFiltering m_filtering = FilterStartsWith;
    Qt::CaseSensitivity m_filteredWith = Qt::CaseSensitive;
    std::unique_ptr<WordStartModel> m_wordStarts;
};

} // namespace morvane::compat
