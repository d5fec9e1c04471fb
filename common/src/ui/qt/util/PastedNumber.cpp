// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/PastedNumber_p.h"

namespace morvane::ui {

namespace {

/** Spreadsheet programs and Qt use different blanks between the groups of digits. */
QString withBlanksOf(const QLocale& locale, QString text)
{
    const QString separator(locale.groupSeparator());
    if (separator.trimmed().isEmpty()) {
        for (const char16_t blank : {u' ', u'\u00A0', u'\u202F'}) {
            text.replace(QChar(blank), separator);
        }
    }
    return text;
}

} // namespace

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

std::optional<QVariant> pastedNumber(const QString& text, const QVariant& old, const QLocale& locale)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return QVariant();
    }
    const QString number = withBlanksOf(locale, trimmed);
    bool isRead = false;
    const auto orNothing = [&isRead](auto read) {
        return isRead ? std::optional<QVariant>(QVariant::fromValue(read)) : std::nullopt;
    };
    switch (old.userType()) {
    case QMetaType::Float:
        return orNothing(locale.toFloat(number, &isRead));
    case QMetaType::Short:
        return orNothing(locale.toShort(number, &isRead));
    case QMetaType::UShort:
        return orNothing(locale.toUShort(number, &isRead));
    case QMetaType::Int:
        return orNothing(locale.toInt(number, &isRead));
    case QMetaType::UInt:
        return orNothing(locale.toUInt(number, &isRead));
    case QMetaType::LongLong:
        return orNothing(locale.toLongLong(number, &isRead));
    case QMetaType::ULongLong:
        return orNothing(locale.toULongLong(number, &isRead));
    default:
        return orNothing(locale.toDouble(number, &isRead));
    }
}

} // namespace morvane::ui
