// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ChosenFilesTable.h"
#include "pages/FacadePage.h"
#include "pages/FileDialogForm.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace gallery {

using tour::expect;

TourStep FacadePage::switchStep(bool native)
{
    return {native ? QStringLiteral("switch-on") : QStringLiteral("switch-off"),
        [this, native] {
            if (m_form->nativeField().isChecked() != native) {
                tour::click(m_form->nativeField());
            }
        },
        [native] { return expect(ExtendedFileDialog::useNativeFileDialog() == native, "the switch did not change"); }};
}

TourStep FacadePage::openStep(const QString& name, const QString& names)
{
    return {name, [this] { tour::click(*m_open); }, [names] { return tour::expectListed(names); }};
}

TourStep FacadePage::launchStep(const QString& name, const QString& names)
{
    return {name, [this] { tour::click(*m_launch); }, [names] { return tour::expectListed(names); }};
}

QString FacadePage::shownOf(const TourWorkspace& workspace, const QStringList& names)
{
    QStringList shown;
    for (const QString& name : names) {
        const qint64 size = QFileInfo(workspace.folder().path(name)).size();
        shown.append(name + QLatin1Char('=') + QLocale().formattedDataSize(size));
    }
    return shown.join(QLatin1Char(' '));
}

TourStep FacadePage::chosenStep(
    const QString& name, const std::function<void()>& action, const QString& files, const QString& type)
{
    return {
        name, action, [this, files, type] {
            const QString complaint = tour::expectClosed();
            return complaint.isEmpty()
                       ? expect(m_chosen->content() == files && m_type->text() == type,
                             QStringLiteral("the page shows \"%1\" and \"%2\"").arg(m_chosen->content(), typeText()))
                       : complaint;
        }};
}

} // namespace gallery
