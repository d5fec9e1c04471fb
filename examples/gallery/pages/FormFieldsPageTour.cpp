// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FormFieldsPage.h"
#include "tour/TourUser.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/IntegralSpinBox.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>

namespace gallery {

using morvane::ui::ComboBoxAutoFilter;
using tour::expect;

namespace {

QString holds(const ComboBoxAutoFilter& field, const QString& entry)
{
    const QString held = field.itemText(field.currentIndex());
    return expect(held == entry && field.currentText() == entry && field.isVisible(),
        QStringLiteral("the field holds \"%1\" and shows \"%2\"").arg(held, field.currentText()));
}

QString offers(const ComboBoxAutoFilter& field, const QString& marked, const QString& line)
{
    const QAbstractItemView& popup = *field.completer()->popup();
    const QString entry = popup.currentIndex().data().toString();
    return expect(popup.isVisible() && entry == marked && field.currentText() == line,
        QStringLiteral("\"%1\" is marked, and the line shows \"%2\"").arg(entry, field.currentText()));
}

} // namespace

std::vector<TourStep> FormFieldsPage::tourSteps(const TourWorkspace&)
{
    const auto suggestions = [](const ComboBoxAutoFilter& field) { return field.completer()->popup(); };

    std::vector<TourStep> steps;
    steps.push_back(
        {QStringLiteral("type-a-part"), [this] { tour::type(*m_substance->lineEdit(), QStringLiteral("ethe")); },
            [this] { return offers(*m_substance, QStringLiteral("Ethene"), QStringLiteral("ethe")); }});
    steps.push_back({QStringLiteral("mark"), [=] { tour::press(*suggestions(*m_substance), Qt::Key_Down); },
        [this] { return offers(*m_substance, QStringLiteral("Polyethene"), QStringLiteral("Polyethene")); }});
    steps.push_back({QStringLiteral("tab-moves-on"), [=] { tour::press(*suggestions(*m_substance), Qt::Key_Tab); },
        [this] {
            const QString complaint = holds(*m_substance, QStringLiteral("Polyethene"));
            return complaint.isEmpty() ? expect(window()->focusWidget() == m_device, "Tab has not moved on")
                                       : complaint;
        }});
    steps.push_back(
        {QStringLiteral("disabled-entry"), [this] { tour::type(*m_device->lineEdit(), QStringLiteral("meter")); },
            [this] { return offers(*m_device, QStringLiteral("Flow meter"), QStringLiteral("meter")); }});
    steps.push_back({QStringLiteral("pick-with-the-mouse"),
        [=] {
            QAbstractItemView& popup = *suggestions(*m_device);
            tour::clickItem(popup, popup.model()->index(popup.model()->rowCount() - 1, 0));
        },
        [this] { return holds(*m_device, QStringLiteral("Thermometer")); }});
    steps.push_back({QStringLiteral("escape"),
        [this] {
            tour::type(*m_device->lineEdit(), QStringLiteral("no such thing"));
            tour::press(*m_device, Qt::Key_Escape);
        },
        [this] {
            const QString complaint = holds(*m_device, QStringLiteral("Thermometer"));
            return complaint.isEmpty() ? expect(m_held->text().endsWith(QStringLiteral("Thermometer")), m_held->text())
                                       : complaint;
        }});
    steps.push_back(
        {QStringLiteral("several-words"), [this] { tour::type(*m_channel->lineEdit(), QStringLiteral("temp cre")); },
            [this] {
                return offers(
                    *m_channel, QString::fromUtf8("Cr\xC3\xA9maill\xC3\xA8re temperature"), QStringLiteral("temp cre"));
            }});
    steps.push_back({QStringLiteral("words-in-bold"),
        [this] { tour::type(*m_channel->lineEdit(), QStringLiteral("p era")); },
        [this] {
            const QAbstractItemModel& offered = *m_channel->completer()->completionModel();
            return expect(offered.rowCount() == 4, QStringLiteral("%1 entries are offered").arg(offered.rowCount()));
        }});
    steps.push_back({QStringLiteral("words-return"), [=] { tour::press(*suggestions(*m_channel), Qt::Key_Return); },
        [this] { return holds(*m_channel, QStringLiteral("Bearing temperature")); }});
    return steps;
}

} // namespace gallery
