// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/compat/ctkCompleterFwd.h"
#include "ui/qt/controls/AutoFilterModel_p.h"

#include <ctkCompleter.h>

namespace morvane::ui {

/** The completer of ComboBoxAutoFilter. It can compare words, and ignore accents. */
class AutoFilterCompleter : public compat::ctkCompleter
{
public:
    AutoFilterCompleter(QAbstractItemModel* entries, QObject* parent);
    ~AutoFilterCompleter() override;

    /** Offers the entries of another model. */
    void setEntries(QAbstractItemModel* entries);
    /**
     * How the text is compared with the entries. Other than by default it has an effect on popup completion only, since
     * the other modes do not filter, or complete the text in the line.
     */
    void setMatching(EntryMatching matching);

    /** The one place where QCompleter asks what a text stands for. Filters, if it is not done by QCompleter itself. */
    QStringList splitPath(const QString& path) const override;

private:
    bool filters() const;

    EntryMatching m_matching;
    const std::unique_ptr<AutoFilterModel> m_model = std::make_unique<AutoFilterModel>();
};

} // namespace morvane::ui
