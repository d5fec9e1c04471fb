// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/SaveReportPage.h"

#include "pages/FileDialogForm.h"
#include "pages/OwnWording.h"
#include "pages/Report.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <QDir>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace gallery {

SaveReportPage::SaveReportPage()
    : Page(QStringLiteral("save-report"), tr("Save a report"),
          tr("The file type that you choose is the format of the report. You are asked before a file is replaced. "
             "If a location cannot be written, you can choose another one.")),
      m_form(new FileDialogForm(FileDialogForm::NativeSwitch | FileDialogForm::StartFile, QStringLiteral("report"),
          QStringLiteral("save-files"))),
      m_reportTitle(new QLineEdit(tr("Readings of the test bench"))),
      m_save(new QPushButton(tr("&Save Report…"))),
      m_wording(new QGroupBox(tr("&Word the questions myself"))),
      m_replaceQuestion(new QLineEdit(tr("There is a report %1 already. Write over it?"))),
      m_refusedQuestion(new QLineEdit(tr("Nobody may write %1 there. Try another place?"))),
      m_file(new QLabel(tr("nothing was written yet"))),
      m_writer(new QLabel(tr("nothing"))),
      m_content(new QPlainTextEdit)
{
    m_form->rows().insertRow(0, tr("&Report:"), m_reportTitle);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_save);
    buttons->addStretch(1);
    body().addWidget(m_form);
    body().addWidget(makeWordingGroup());
    body().addLayout(buttons);
    body().addWidget(makeResultGroup(), 1);
    connect(m_form, &FileDialogForm::usableChanged, m_save, &QWidget::setEnabled);
    connect(m_save, &QPushButton::clicked, this, [this] { save(); });
}

QWidget* SaveReportPage::makeWordingGroup()
{
    m_wording->setCheckable(true);
    m_wording->setChecked(false);
    m_wording->setToolTip(tr("%1 stands for the name of the file"));
    auto* const form = new QFormLayout(m_wording);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Replace a &file:"), m_replaceQuestion);
    form->addRow(tr("Place refuses:"), m_refusedQuestion);
    return m_wording;
}

QWidget* SaveReportPage::makeResultGroup()
{
    auto* const group = new QGroupBox(tr("On the disk"));
    m_file->setTextFormat(Qt::PlainText);
    m_file->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_file->setWordWrap(true);
    m_content->setReadOnly(true);
    m_content->setAccessibleName(tr("Content of the file"));
    m_content->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_content->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_content->setMinimumHeight(8 * m_content->fontMetrics().lineSpacing());
    auto* const form = new QFormLayout;
    form->addRow(tr("File:"), m_file);
    form->addRow(tr("Written as:"), m_writer);
    auto* const layout = new QVBoxLayout(group);
    layout->addLayout(form);
    layout->addWidget(m_content, 1);
    return group;
}

std::unique_ptr<morvane::SaveFileMessageHandlerInterface> SaveReportPage::makeHandler() const
{
    if (m_wording->isChecked()) {
        return std::make_unique<OwnWording>(m_replaceQuestion->text(), m_refusedQuestion->text());
    }
    return std::make_unique<morvane::DefaultSaveFileMessageHandler>();
}

void SaveReportPage::save()
{
    std::vector<std::string> filters;
    for (const ReportWriter& writer : reportWriters()) {
        filters.push_back(writer.filter);
    }
    SaveFileDialog dialog(window(), "Save Report", m_form->startFolder(), m_form->startFile(), filters, 0,
        m_form->helpTopic(), makeHandler());
    // The same for the native dialog and for Qt's.
    m_options.addTo(*dialog.customization());
    if (!dialog.launch()) {
        showNothingWritten(tr("given up"));
        return;
    }
    write(QString::fromStdString(dialog.selectedFilename()), dialog.selectedWriter());
}

QString SaveReportPage::reportText(int writer) const
{
    Report report = Report::example(m_reportTitle->text());
    m_options.applyTo(report);
    return (report.*reportWriters().at(static_cast<size_t>(qMax(0, writer))).write)();
}

void SaveReportPage::write(const QString& fileName, int writer)
{
    const ReportWriter& chosen = reportWriters().at(static_cast<size_t>(qMax(0, writer)));
    const QByteArray content = m_options.encoded(reportText(writer));
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit()) {
        showWritten(fileName, tr("%1, writer %2, %3").arg(chosen.name).arg(writer).arg(m_options.encodingName()));
    } else {
        showNothingWritten(file.errorString());
    }
}

void SaveReportPage::showWritten(const QString& fileName, const QString& writer)
{
    QFile file(fileName);
    const QString size = QLocale().formattedDataSize(file.size());
    m_file->setText(QDir::toNativeSeparators(fileName));
    m_writer->setText(tr("%1, %2").arg(writer, size));
    m_content->setPlainText(file.open(QIODevice::ReadOnly) ? m_options.decoded(file.readAll()) : QString());
    Q_EMIT reported(tr("Written: %1 (%2, %3)").arg(QDir::toNativeSeparators(fileName), writer, size));
}

void SaveReportPage::showNothingWritten(const QString& reason)
{
    m_file->setText(tr("nothing was written: %1").arg(reason));
    m_writer->setText(tr("nothing"));
    m_content->clear();
    Q_EMIT reported(tr("Nothing was written: %1").arg(reason));
}

} // namespace gallery
