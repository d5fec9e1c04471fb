// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

namespace morvane::ui {

/**
 * Whether @p Text is a text of Qt: a QString, or a type that converts to it but not to std::string. Where a function of
 * the library takes a UTF-8 `std::string`, an overload takes such a text, so that `tr("Open")` needs no conversion. The
 * overload calls the function with the text in UTF-8.
 *
 * The overload is never chosen for string literals, `std::string` and `{}`: a call with these compiles as it would
 * without the overload. If a function has several texts, they may be of different kinds.
 *
 * @snippet 39-in-the-users-language/main.cpp texts
 */
template <typename Text>
inline constexpr bool isQtText =
    std::is_convertible_v<const Text&, QString> && !std::is_convertible_v<const Text&, std::string>;

/** Whether @p Texts is a list of texts of Qt: a QStringList, or a type that converts to it. */
template <typename Texts>
inline constexpr bool isQtTextList =
    std::is_convertible_v<const Texts&, QStringList> &&
    !std::is_convertible_v<const Texts&, std::vector<std::string>> && !std::is_convertible_v<const Texts&, QString>;

/**
 * Texts in braces, as an argument beside a text of Qt. You need not name this class.
 *
 * @snippet 39-in-the-users-language/main.cpp texts
 */
class BracedTexts
{
public:
    /** Takes the texts between the braces. */
    BracedTexts(std::initializer_list<QString> texts) : m_texts(texts) {}
    /** The texts in the order in which they were written. */
    const QStringList& texts() const { return m_texts; }

private:
    QStringList m_texts;
};

/** Whether @p Text may stand beside a text of Qt: a text or a list of any kind. */
template <typename Text>
inline constexpr bool isText =
    std::is_convertible_v<const Text&, QString> || std::is_convertible_v<const Text&, std::string> ||
    std::is_convertible_v<const Text&, QStringList> || std::is_convertible_v<const Text&, std::vector<std::string>> ||
    std::is_same_v<Text, BracedTexts>;

/** An overload with this parameter takes part only if at least one of its texts or lists is Qt's. */
template <typename... Texts>
using IfQtText = std::enable_if_t<((isQtText<Texts> || isQtTextList<Texts>) || ...) && (isText<Texts> && ...), int>;

/** Returns @p text in UTF-8. It is a text of Qt, or converts to std::string. */
template <typename Text>
std::string utf8Text(const Text& text)
{
    if constexpr (isQtText<Text>) {
        const QString qtText = text;
        return qtText.toStdString();
    } else {
        return text;
    }
}

/** Returns @p texts in UTF-8: a list of texts of Qt, a vector of strings, or BracedTexts. */
template <typename Texts>
std::vector<std::string> utf8Texts(const Texts& texts)
{
    if constexpr (std::is_same_v<Texts, BracedTexts>) {
        return utf8Texts(texts.texts());
    } else if constexpr (isQtTextList<Texts>) {
        std::vector<std::string> result;
        const QStringList qtTexts = texts;
        for (const QString& text : qtTexts) {
            result.push_back(text.toStdString());
        }
        return result;
    } else {
        return texts;
    }
}

} // namespace morvane::ui
