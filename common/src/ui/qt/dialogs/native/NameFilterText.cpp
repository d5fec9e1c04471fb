// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/NameFilterText_p.h"

#include <QCoreApplication>

#include <algorithm>

namespace morvane::ui {

namespace {

/** The text between the last `)` and the last `opening` before it, and the position of that `opening`. */
struct Enclosed
{
    bool found = false;
    std::size_t openingAt = 0;
    std::string_view text;
};

Enclosed findEnclosed(std::string_view filter, std::string_view opening)
{
    // A dot in the expressions does not match a line break. So they do not match a text with a line break.
    if (filter.find('\n') != std::string_view::npos || filter.find('\r') != std::string_view::npos) {
        return {};
    }
    const std::size_t closing = filter.rfind(')');
    if (closing == std::string_view::npos || closing < opening.size()) {
        return {};
    }
    const std::size_t at = filter.rfind(opening, closing - opening.size());
    if (at == std::string_view::npos) {
        return {};
    }
    const std::size_t begin = at + opening.size();
    return {true, at, filter.substr(begin, closing - begin)};
}

QString withoutBlanksAround(const QString& text)
{
    int begin = 0;
    int end = text.size();
    while (begin < end && text[begin] == QLatin1Char(' ')) {
        ++begin;
    }
    while (end > begin && text[end - 1] == QLatin1Char(' ')) {
        --end;
    }
    return text.mid(begin, end - begin);
}

} // namespace

FileTypeText splitNameFilter(std::string_view filter)
{
    const Enclosed patterns = findEnclosed(filter, " (");
    FileTypeText result;
    result.description = patterns.found
                             ? std::string(filter.substr(0, patterns.openingAt))
                             : QCoreApplication::translate("ExtendedWinFileDialog", "File of Type").toStdString();
    result.patterns = patterns.found ? patterns.text : filter;
    std::replace(result.patterns.begin(), result.patterns.end(), ' ', ';');
    return result;
}

std::string extensionOfNameFilter(std::string_view filter)
{
    return std::string(findEnclosed(filter, " (*.").text);
}

bool isBareWildcard(std::string_view extension)
{
    const std::string_view first = extension.substr(0, extension.find_first_of(" ;"));
    return !first.empty() && first.find_first_not_of("*?") == std::string_view::npos;
}

QStringList splitNameFilters(const std::string& filters)
{
    const QString text = QString::fromUtf8(filters.data(), static_cast<int>(filters.size()));
    QStringList result = text.split(QStringLiteral(";;"), Qt::SkipEmptyParts, Qt::CaseSensitive);
    for (QString& filter : result) {
        filter = withoutBlanksAround(filter);
    }
    return result;
}

} // namespace morvane::ui
