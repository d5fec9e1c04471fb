// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FacadePage.h"

#include "pages/ChosenFilesTable.h"
#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

FacadePage::FacadePage(const Texts& texts, QFileDialog::AcceptMode acceptMode, FileDialogForm* form)
    : Page(texts.name, texts.title, texts.sentence),
      m_caption(texts.caption),
      m_acceptMode(acceptMode),
      m_form(form),
      m_open(new QPushButton(texts.button)),
      m_launch(new QPushButton(tr("With One &Call…"))),
      m_type(new QLabel(tr("Nothing was chosen yet."))),
      m_chosen(new ChosenFilesTable)
{
    m_type->setTextFormat(Qt::PlainText);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_open);
    buttons->addWidget(m_launch);
    buttons->addStretch(1);
    body().addWidget(m_form);
    body().addLayout(buttons);
    body().addWidget(m_type);
    body().addWidget(m_chosen, 1);
    m_launch->hide();

    connect(m_form, &FileDialogForm::usableChanged, m_open, &QWidget::setEnabled);
    connect(m_form, &FileDialogForm::usableChanged, m_launch, &QWidget::setEnabled);
    connect(m_open, &QPushButton::clicked, this, [this] { runDialog(); });
    connect(m_launch, &QPushButton::clicked, this, [this] { launchDialog(); });
}

void FacadePage::configure(ExtendedFileDialog&) {}

void FacadePage::addLaunchButton()
{
    m_launch->show();
}

QString FacadePage::typeText() const
{
    return m_type->text();
}

void FacadePage::runDialog()
{
    const std::vector<std::string> filters = m_form->filterList();
    ExtendedFileDialog dialog(*window(), m_caption, m_form->startFolder(),
        fileMode() == QFileDialog::Directory ? std::string() : m_form->filters(), m_form->helpTopic(), m_acceptMode);
    dialog.setFileMode(fileMode());
    if (fileMode() != QFileDialog::Directory && !filters.empty()) {
        dialog.selectNameFilter(QString::fromStdString(filters[static_cast<size_t>(m_form->startType())]));
    }
    if (!m_form->startFile().empty()) {
        dialog.selectFile(QString::fromStdString(m_form->startFile()));
    }
    configure(dialog);
    Q_EMIT reported(ExtendedFileDialog::useNativeFileDialog() ? tr("Native dialog opened") : tr("Qt dialog opened"));
    if (dialog.exec() == QDialog::Accepted) {
        showChosen(dialog.selectedFiles(), dialog.nameFilters().indexOf(dialog.selectedNameFilter()));
    } else {
        Q_EMIT reported(tr("Dialog cancelled"));
    }
}

void FacadePage::launchDialog()
{
    std::vector<std::string> files;
    int type = -1;
    const bool saving = m_acceptMode == QFileDialog::AcceptSave;
    const std::string start = m_form->startFolder() + '/' + m_form->startFile();
    if (!morvane::ui::LaunchFileDialog(files, type, m_caption.toStdString(), m_form->filterList(), {start}, saving,
            fileMode() == QFileDialog::ExistingFiles, m_form->startType())) {
        Q_EMIT reported(tr("The call returned false"));
        return;
    }
    QStringList chosen;
    for (const std::string& file : files) {
        chosen.append(QString::fromStdString(file));
    }
    Q_EMIT reported(tr("The call returned true"));
    showChosen(chosen, type);
}

void FacadePage::showChosen(const QStringList& files, int type)
{
    const std::vector<std::string> filters = m_form->filterList();
    const bool known = type >= 0 && static_cast<size_t>(type) < filters.size();
    m_type->setText(
        known ? tr("Chosen as type %1, %2:").arg(type).arg(QString::fromStdString(filters[static_cast<size_t>(type)]))
              : tr("Chosen:"));
    for (const QString& line : m_chosen->showFiles(files)) {
        Q_EMIT reported(line);
    }
}

} // namespace gallery
