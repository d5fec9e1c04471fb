// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/LabelsPage.h"
#include "tour/TourUser.h"
#include "tour/TourWorkspace.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QSplitter>

namespace gallery {

using tour::expect;

std::vector<TourStep> LabelsPage::tourSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("narrow"),
        [this, &workspace] {
            tour::type(*m_path, workspace.folder().path(QStringLiteral("archive/of/the/last/campaign/run-001.dat")));
            m_splitter->setSizes({m_splitter->width() / 2, m_splitter->width() / 2});
        },
        [this] { return expect(m_label->toolTip() == m_path->text(), "the elided path is not the tool tip"); }});
    steps.push_back({QStringLiteral("copy"),
        [this] {
            tour::click(*m_label);
            tour::press(*m_label, Qt::Key_C, Qt::ControlModifier);
        },
        [this] {
            return expect(window()->focusWidget() == m_label && QApplication::clipboard()->text() == m_path->text(),
                "the whole path is not on the clipboard");
        }});
    steps.push_back({QStringLiteral("elide-middle"), [this] { m_elideMode->setCurrentIndex(Qt::ElideMiddle); },
        [this] {
            return expect(m_label->elideMode() == Qt::ElideMiddle && m_label->toolTip() == m_path->text(),
                "the elided path is not the tool tip");
        }});
    steps.push_back({QStringLiteral("wide"),
        [this] {
            tour::type(*m_path, QStringLiteral("run-001.dat"));
            m_splitter->setSizes({m_splitter->width() - 160, 160}); // beside it, the hint is not cut
        },
        [this] { return expect(m_label->toolTip().isEmpty(), "a path that fits has a tool tip"); }});
    steps.push_back({QStringLiteral("narrow-button"), [this] { tour::click(*m_button); },
        [this] {
            const QWidget& button = *m_button;
            return expect(button.width() >= button.sizeHint().width(), "the button was shrunk");
        }});
    return steps;
}

} // namespace gallery
