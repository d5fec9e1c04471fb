// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCompleter>

#include <array>

/** Has the name of CTK's completer and the functions of it that the program uses, but another layout. */
class ctkCompleter : public QCompleter
{
    Q_OBJECT

public:
    enum ModelFiltering : qint64
    {
        FilterContains = 7
    };
    Q_ENUM(ModelFiltering)

    explicit ctkCompleter(const QStringList& completions, QObject* parent = nullptr);
    ~ctkCompleter() override;

    virtual void setModelFiltering(ModelFiltering filtering);

private:
    std::array<double, 64> m_ballast = {};
};
