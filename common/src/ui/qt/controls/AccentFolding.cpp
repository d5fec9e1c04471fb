// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AccentFolding_p.h"

#include <algorithm>
#include <array>
#include <memory>

namespace morvane::ui {

namespace {

bool isAccent(QChar character)
{
    return character.category() == QChar::Mark_NonSpacing && character.combiningClass() >= 200;
}

/** The letter without its accents; the null character for an accent. */
QChar folded(QChar character)
{
    if (isAccent(character)) {
        return QChar();
    }
    if (character.decompositionTag() != QChar::Canonical) {
        return character;
    }
    const QString parts = character.decomposition();
    const bool isAccented = !parts.isEmpty() && std::all_of(parts.begin() + 1, parts.end(), isAccent);
    return isAccented ? folded(parts.front()) : character;
}

using FoldingTable = std::array<QChar, 0x10000>;

/** Made when it is first needed. Asking Qt for each character of each entry would take most of the time of a search. */
const FoldingTable& foldingTable()
{
    static const std::unique_ptr<const FoldingTable> table = [] {
        auto made = std::make_unique<FoldingTable>();
        for (unsigned unit = 0; unit < made->size(); ++unit) {
            const QChar character(static_cast<ushort>(unit));
            (*made)[unit] = character.isSurrogate() ? character : folded(character);
        }
        return made;
    }();
    return *table;
}

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

} // namespace

QString withoutAccents(const QString& text, std::vector<int>* places)
{
    if (!places && std::all_of(text.begin(), text.end(), isAscii)) {
        return text;
    }
    const FoldingTable& table = foldingTable();
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = table[text.at(i).unicode()];
        if (!letter.isNull() || text.at(i).isNull()) {
            result.append(letter);
            if (places) {
                places->push_back(i);
            }
        }
    }
    if (places) {
        places->push_back(static_cast<int>(text.size()));
    }
    return result;
}

} // namespace morvane::ui
