// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ShellText_p.h"

#include <cstdint>

namespace morvane::ui {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendCodePoint(ShellString& result, char32_t character)
{
    if (character > 0x10FFFF || isHighSurrogate(character) || isLowSurrogate(character)) {
        character = replacementCharacter;
    }
    if (character < 0x10000) {
        result.push_back(static_cast<WCHAR>(character));
        return;
    }
    result.push_back(static_cast<WCHAR>(0xD800 + ((character - 0x10000) >> 10)));
    result.push_back(static_cast<WCHAR>(0xDC00 + ((character - 0x10000) & 0x3FF)));
}

char32_t codePointOf(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

/** Units of 16 bits may be surrogate pairs. Units of 32 bits are code points. */
template <typename Unit>
ShellString converted(const Unit* units, std::size_t count)
{
    ShellString result;
    result.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto unit = static_cast<char32_t>(units[i]);
        if (sizeof(Unit) == 2 && isHighSurrogate(unit) && i + 1 < count &&
            isLowSurrogate(static_cast<char32_t>(units[i + 1]))) {
            appendCodePoint(result, codePointOf(unit, static_cast<char32_t>(units[++i])));
        } else {
            appendCodePoint(result, unit);
        }
    }
    return result;
}

QString fromUnits(const WCHAR* units, std::size_t count)
{
    return QString(reinterpret_cast<const QChar*>(units), static_cast<int>(count));
}

} // namespace

ShellString toShellString(const std::wstring& text)
{
    return converted(text.data(), text.size());
}

ShellString toShellString(const QString& text)
{
    return converted(text.utf16(), static_cast<std::size_t>(text.size()));
}

QString toQString(const WCHAR* text)
{
    return text ? fromUnits(text, std::char_traits<WCHAR>::length(text)) : QString();
}

QString toQString(const ShellString& text)
{
    return fromUnits(text.data(), text.size());
}

std::string toUtf8(const WCHAR* text)
{
    if (!text) {
        return std::string();
    }
    return toQString(converted(text, std::char_traits<WCHAR>::length(text))).toUtf8().toStdString();
}

} // namespace morvane::ui
