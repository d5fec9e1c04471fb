// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "LiteralNumberReading.h"

#include <QLocale>
#include <QStringList>

#include <cmath>
#include <cstdlib>

namespace morvane::test {

namespace {

QString strippedLiterally(const QString& input, int& pos, const ui::NumberRules& rules)
{
    QString text = input;
    if (rules.specialValueText.isEmpty() || text != rules.specialValueText) {
        int from = 0;
        int size = text.size();
        if (!rules.prefix.isEmpty() && text.startsWith(rules.prefix)) {
            from += rules.prefix.size();
            size -= from;
        }
        const QString rest = text.mid(from, size);
        if (!rules.suffix.isEmpty() && rest.endsWith(rules.suffix)) {
            size -= rules.suffix.size();
        }
        text = text.mid(from, size);
    }
    const int before = text.size();
    int first = 0;
    int end = before;
    while (first < end && text.at(first).isSpace()) {
        ++first;
    }
    while (end > first && text.at(end - 1).isSpace()) {
        --end;
    }
    text = text.mid(first, end - first);
    pos -= before - text.size();
    return text;
}

/** Returns the state of the text; stores the results of the reading in copy, pos and num. */
QValidator::State readLiterally(
    QString& copy, int& pos, double& num, const ui::NumberRules& rules, const DigitSearch& search)
{
    const double min = rules.minimum;
    const double max = rules.maximum;
    const bool plus = max >= 0;
    const bool minus = min <= 0;
    const int len = copy.size();
    const auto separates = [](QChar c) { return c.isSpace() || c == ','; };

    if (len == 0) {
        return max != min ? QValidator::Intermediate : QValidator::Invalid;
    }
    if (len == 1 && (copy == "." || (copy == "+" && plus) || (copy == "-" && minus))) {
        return QValidator::Intermediate;
    }
    if (len == 2 && ((copy == "+." && plus) || (copy == "-." && minus))) {
        return QValidator::Intermediate;
    }
    if (copy.startsWith(",")) {
        return QValidator::Invalid;
    }
    if (len > 1) {
        const int dec = copy.indexOf(".");
        if (dec >= 0) {
            if (dec + 1 < copy.size() && copy.at(dec + 1) == '.' && pos == dec + 1) {
                copy.remove(dec + 1, 1);
            }
            for (int i = dec + 1; i < copy.size(); ++i) {
                if (separates(copy.at(i))) {
                    return QValidator::Invalid;
                }
            }
        } else {
            const QChar last = copy.at(len - 1);
            const QChar secondLast = copy.at(len - 2);
            if ((separates(last) && separates(secondLast)) || last.isSpace()) {
                return QValidator::Invalid;
            }
        }
    }
    bool ok = false;
    bool notAcceptable = false;
    num = QLocale(QLocale::English, QLocale::UnitedStates).toDouble(copy, &ok);
    if (!ok) {
        if (max < 1000 && min > -1000 && copy.contains(",")) {
            return QValidator::Invalid;
        }
        if (copy.contains(",,")) {
            return QValidator::Invalid;
        }
        const int removed = copy.count(",");
        copy.replace(",", "");
        pos = pos - removed > 0 ? pos - removed : 0;
        num = QLocale(QLocale::English, QLocale::UnitedStates).toDouble(copy, &ok);
        if (!ok) {
            return QValidator::Invalid;
        }
        notAcceptable = true;
    }
    if (num >= min && num <= max) {
        return notAcceptable ? QValidator::Intermediate : QValidator::Acceptable;
    }
    if (max == min) {
        return QValidator::Invalid;
    }
    if ((num >= 0 && num > max) || (num < 0 && num < min)) {
        return QValidator::Invalid;
    }
    return literalIntermediateValue(copy, rules, search) ? QValidator::Intermediate : QValidator::Invalid;
}

} // namespace

bool literalIntermediateValue(const QString& str, const ui::NumberRules& rules, const DigitSearch& search)
{
    const auto dec = static_cast<qint64>(std::pow(10.0, rules.decimals));
    const QStringList minHalves = QString::number(rules.minimum, 'f', rules.decimals).split('.');
    const QStringList maxHalves = QString::number(rules.maximum, 'f', rules.decimals).split('.');
    const qint64 min_left = minHalves.at(0).toLongLong();
    const qint64 max_left = maxHalves.at(0).toLongLong();
    qint64 min_right = minHalves.value(1).toLongLong();
    qint64 max_right = maxHalves.value(1).toLongLong();
    const bool negative = rules.maximum < 0;

    qint64 left = 0;
    qint64 right = 0;
    bool hasLeft = true;
    bool hasRight = true;
    const int point = str.indexOf(".");
    if (point == -1) {
        left = str.toLongLong();
        hasRight = false;
    } else if (point == 0 || (point == 1 && str.at(0) == '+')) {
        if (negative) {
            return false;
        }
        hasLeft = false;
        right = str.mid(point + 1).toLongLong();
    } else if (point == 1 && str.at(0) == '-') {
        if (!negative) {
            return false;
        }
        hasLeft = false;
        right = str.mid(point + 1).toLongLong();
    } else {
        left = str.left(point).toLongLong();
        if (point == str.size() - 1) {
            hasRight = false;
        } else {
            right = str.mid(point + 1).toLongLong();
        }
    }
    if ((left >= 0 && max_left < 0 && !str.startsWith("-")) || (left < 0 && min_left >= 0)) {
        return false;
    }
    qint64 match = min_left;
    if (hasLeft) {
        const auto found = search(left, min_left, max_left);
        if (!found) {
            return false;
        }
        match = *found;
    }
    if (!hasRight) {
        return true;
    }
    if (!hasLeft) {
        const qint64 tested = std::llabs(left);
        if (min_left == max_left) {
            return search(tested, negative ? max_right : min_right, negative ? min_right : max_right).has_value();
        }
        // Not a difference of integers, because that may overflow.
        if ((max_left > min_left && max_left - 1 == min_left) || (min_left > max_left && min_left - 1 == max_left)) {
            return search(tested, min_right, negative ? 0 : dec).has_value() ||
                   search(tested, negative ? dec : 0, max_right).has_value();
        }
        return search(tested, 0, dec).has_value();
    }
    if (match != min_left) {
        min_right = negative ? dec : 0;
    }
    if (match != max_left) {
        max_right = negative ? 0 : dec;
    }
    return search(right, negative ? max_right : min_right, negative ? min_right : max_right).has_value();
}

ui::NumberInterpretation literalReading(
    const QString& input, int& pos, const ui::NumberRules& rules, const DigitSearch& search)
{
    QString copy = strippedLiterally(input, pos, rules);
    double num = rules.minimum;
    const QValidator::State state = readLiterally(copy, pos, num, rules, search);
    if (state != QValidator::Acceptable) {
        num = rules.maximum > 0 ? rules.minimum : rules.maximum;
    }
    return {state, num, rules.prefix + copy + rules.suffix};
}

} // namespace morvane::test
