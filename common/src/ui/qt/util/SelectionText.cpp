// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/SelectionText_p.h"

#include "ui/qt/util/SelectionWalk_p.h"

namespace morvane::ui {

namespace {

class Writer
{
public:
    explicit Writer(const QAbstractItemModel& model) : m_model(model) {}

    void row(int) { m_separator = m_separator == Separator::none ? Separator::none : Separator::row; }

    void cell(const QModelIndex& index)
    {
        if (m_separator != Separator::none) {
            m_text += m_separator == Separator::row ? QLatin1Char('\n') : QLatin1Char('\t');
        }
        m_separator = Separator::cell;
        appendText(m_model.data(index, Qt::DisplayRole));
    }

    QString takeText()
    {
        // The clipboard may keep the text for hours, and its buffer may be twice as large as the text.
        m_text.squeeze();
        return std::move(m_text);
    }

private:
    enum class Separator
    {
        none,
        row,
        cell
    };

    void appendText(const QVariant& data)
    {
        if (data.userType() == QMetaType::QString) {
            m_text += *static_cast<const QString*>(data.constData());
        } else {
            m_text += data.toString();
        }
    }

    const QAbstractItemModel& m_model;
    QString m_text;
    Separator m_separator = Separator::none; // written before the next cell
};

} // namespace

QString selectionText(const QItemSelection& selection, const QAbstractItemModel& model)
{
    Writer writer(model);
    SelectionWalk<Writer>(model, writer).visit(selection);
    return writer.takeText();
}

} // namespace morvane::ui
