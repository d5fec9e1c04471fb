// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileDialogForm.h"

#include "InlineNote.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

namespace gallery {

FileDialogForm::FileDialogForm(Parts parts, const QString& startFile, const QString& helpTopic)
    : m_rows(new QFormLayout(this)),
      m_options(new QHBoxLayout),
      m_native(new QCheckBox(tr("Nati&ve instead of Qt's"), this)),
      m_filters(new QLineEdit(tr("Measurements (*.dat *.csv);;Text (*.txt);;All files (*)"), this)),
      m_type(new QComboBox(this)),
      m_folder(new QLineEdit(QDir::toNativeSeparators(QDir::homePath()), this)),
      m_note(new InlineNote(this)),
      m_file(new QLineEdit(startFile, this)),
      m_helpTopic(new QLineEdit(helpTopic, this))
{
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const auto addRow = [this](bool wanted, const QString& label, QWidget* field) {
        field->setHidden(!wanted);
        if (wanted) {
            m_rows->addRow(label, field);
        }
    };
    m_options->addStretch(1);
    m_native->hide();
    if (parts.testFlag(NativeSwitch)) {
        addOption(m_native);
        m_native->show();
    }
    m_rows->addRow(tr("Dialog:"), m_options);
    addRow(parts.testFlag(Filters), tr("Name &filters:"), m_filters);
    addRow(parts.testFlag(Filters), tr("Start t&ype:"), m_type);
    addRow(true, tr("S&tart folder:"), m_folder);
    addRow(true, QString(), m_note);
    addRow(parts.testFlag(StartFile), tr("Start f&ile:"), m_file);
    addRow(true, tr("H&elp topic:"), m_helpTopic);
    m_helpTopic->setPlaceholderText(tr("none: no Help button"));

    connect(m_native, &QCheckBox::toggled, this, [](bool on) { ExtendedFileDialog::setUseNativeFileDialog(on); });
    connect(m_folder, &QLineEdit::textChanged, this, [this] { checkFolder(); });
    connect(m_filters, &QLineEdit::textChanged, this, [this] { listTypes(); });
    showSwitch();
    listTypes();
}

void FileDialogForm::addOption(QWidget* field)
{
    const int end = m_options->count() - 1;
    m_options->insertWidget(end, field);
    m_options->insertSpacing(end + 1, 12);
}

bool FileDialogForm::isUsable() const
{
    return m_folder->text().isEmpty() || QFileInfo(m_folder->text()).isDir();
}

std::string FileDialogForm::startFolder() const
{
    return QDir::fromNativeSeparators(m_folder->text()).toStdString();
}

std::string FileDialogForm::startFile() const
{
    return m_file->text().toStdString();
}

std::string FileDialogForm::filters() const
{
    return m_filters->text().toStdString();
}

std::vector<std::string> FileDialogForm::filterList() const
{
    std::vector<std::string> filters;
    for (int row = 0; row < m_type->count(); ++row) {
        filters.push_back(m_type->itemText(row).toStdString());
    }
    return filters;
}

int FileDialogForm::startType() const
{
    return m_type->currentIndex();
}

std::string FileDialogForm::helpTopic() const
{
    return m_helpTopic->text().toStdString();
}

QString FileDialogForm::note() const
{
    return m_note->text();
}

void FileDialogForm::showEvent(QShowEvent* event)
{
    showSwitch();
    QWidget::showEvent(event);
}

void FileDialogForm::showSwitch()
{
    // The switch is process-wide: another page may have changed it.
    const QSignalBlocker blocker(m_native);
    m_native->setChecked(ExtendedFileDialog::useNativeFileDialog());
}

void FileDialogForm::checkFolder()
{
    const bool isFile = QFileInfo(m_folder->text()).isFile();
    m_note->setText(isUsable() ? QString()
                    : isFile   ? tr("This is a file, not a folder.")
                               : tr("There is no such folder."));
    Q_EMIT usableChanged(isUsable());
}

void FileDialogForm::listTypes()
{
    const int chosen = qMax(0, m_type->currentIndex());
    m_type->clear();
    m_type->addItems(m_filters->text().split(QStringLiteral(";;"), Qt::SkipEmptyParts));
    m_type->setCurrentIndex(qMin(chosen, m_type->count() - 1));
}

} // namespace gallery
