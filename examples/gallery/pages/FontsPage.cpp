// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FontsPage.h"

#include "PaddedItemDelegate.h"
#include "ui/qt/util/Fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <utility>

namespace gallery {

namespace {

constexpr double previewPointSize = 15;

QString firstFontFolder()
{
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    for (const QString& folder : folders) {
        if (QDir(folder).exists()) {
            return folder;
        }
    }
    return QDir::homePath();
}

} // namespace

FontsPage::FontsPage()
    : Page(QStringLiteral("fonts"), tr("Fonts from files"),
          tr("Registers every file of a folder as a font for this program only. A file that is not a font is skipped "
             "with a warning in the program's log.")),
      m_folder(new QLineEdit(QDir::toNativeSeparators(firstFontFolder()))),
      m_register(new QPushButton(tr("&Register Fonts"))),
      m_result(new QLabel),
      m_fonts(new QListWidget)
{
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Folder:"), m_folder);
    body().addLayout(form);

    auto* const row = new QHBoxLayout;
    row->addWidget(m_register);
    row->addWidget(m_result, 1);
    body().addLayout(row);

    m_fonts->setAccessibleName(tr("Registered fonts"));
    m_fonts->setItemDelegate(new PaddedItemDelegate(4, m_fonts));
    m_fonts->setSelectionMode(QAbstractItemView::NoSelection);
    m_fonts->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    body().addWidget(m_fonts, 1);

    connect(m_register, &QPushButton::clicked, this, [this] { registerFonts(); });
    connect(m_folder, &QLineEdit::returnPressed, this, [this] { registerFonts(); });
}

void FontsPage::registerFonts()
{
    const QString folder = QDir::fromNativeSeparators(m_folder->text());
    if (folder.isEmpty() || !QDir(folder).exists()) {
        m_result->setText(tr("There is no such folder."));
        return;
    }
    const int files = QDir(folder).entryList(QDir::Files).size();
    morvane::ui::addFontsToDatabase(folder);
    const int fonts = previewNewFonts();
    m_result->setText(tr("%1 of %2 files were fonts.").arg(fonts).arg(files));
    Q_EMIT reported(tr("%1: %2").arg(m_folder->text(), m_result->text()));
}

int FontsPage::previewNewFonts()
{
    int count = 0;
    for (QStringList families; !(families = QFontDatabase::applicationFontFamilies(m_nextFont)).isEmpty(); ++count) {
        ++m_nextFont;
        for (const QString& family : std::as_const(families)) {
            auto* const item = new QListWidgetItem(tr("%1: 0123456789 äöü ±µΩ°").arg(family), m_fonts);
            QFont font(family);
            font.setPointSizeF(previewPointSize);
            item->setFont(font);
        }
    }
    m_fonts->scrollToBottom();
    return count;
}

} // namespace gallery
