// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/OpenFilesPage.h"

#include "host/ApplicationSettings.h"
#include "InlineNote.h"
#include "pages/ChosenFilesTable.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace gallery {

namespace {

const char* const dialogGeometryKey = "gallery/open files dialog";

QSpinBox* makeSideField(int pixels)
{
    auto* const field = new QSpinBox;
    field->setRange(0, 4000);
    field->setSingleStep(20);
    field->setValue(pixels);
    field->setSuffix(QStringLiteral(" px"));
    return field;
}

} // namespace

OpenFilesPage::OpenFilesPage()
    : Page(QStringLiteral("open-files"), tr("Open files (Qt dialog)"),
          tr("The Qt file dialog: it remembers its size, uses a wildcard that is typed as the name as a filter "
             "(*.csv), and opens its own help page.")),
      m_oneFile(new QRadioButton(tr("O&ne file"))),
      m_severalFiles(new QRadioButton(tr("&Several files"))),
      m_folder(new QRadioButton(tr("A fol&der"))),
      m_filters(new QLineEdit(tr("Measurements (*.dat *.csv);;Text (*.txt);;All files (*)"))),
      m_startFolder(new QLineEdit(QDir::toNativeSeparators(QDir::homePath()))),
      m_startFolderNote(new InlineNote),
      m_withHelp(new QCheckBox(tr("Help &button for the topic"))),
      m_helpTopic(new QLineEdit(QStringLiteral("open-files"))),
      m_validate(new QCheckBox(tr("&Check that the chosen files exist"))),
      m_width(makeSideField(720)),
      m_height(makeSideField(440)),
      m_open(new QPushButton(tr("&Open…"))),
      m_forget(new QPushButton(tr("For&get Geometry"))),
      m_chosen(new ChosenFilesTable)
{
    m_oneFile->setChecked(true);
    m_withHelp->setChecked(true);
    m_validate->setChecked(true);
    body().addLayout(makeOptions());
    body().addLayout(makeButtons());
    body().addWidget(m_chosen, 1);
    connectOptions();
    checkOptions();
}

QFormLayout* OpenFilesPage::makeOptions()
{
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Choose:"), makeModeRow());
    form->addRow(tr("Name &filters:"), m_filters);
    form->addRow(tr("S&tart folder:"), m_startFolder);
    form->addRow(QString(), m_startFolderNote);
    form->addRow(tr("Help:"), makeHelpRow());
    form->addRow(tr("Validation:"), m_validate);
    form->addRow(tr("Default size:"), makeSizeRow());
    return form;
}

QLayout* OpenFilesPage::makeModeRow()
{
    auto* const row = new QHBoxLayout;
    for (QRadioButton* const mode : {m_oneFile, m_severalFiles, m_folder}) {
        row->addWidget(mode);
        row->addSpacing(12);
    }
    row->addStretch(1);
    return row;
}

QLayout* OpenFilesPage::makeHelpRow()
{
    m_helpTopic->setAccessibleName(tr("Help topic"));
    auto* const row = new QHBoxLayout;
    row->addWidget(m_withHelp);
    row->addWidget(m_helpTopic, 1);
    return row;
}

QLayout* OpenFilesPage::makeSizeRow()
{
    m_width->setAccessibleName(tr("Default width"));
    m_height->setAccessibleName(tr("Default height"));
    auto* const row = new QHBoxLayout;
    row->addWidget(m_width);
    row->addWidget(new QLabel(tr("by")));
    row->addWidget(m_height);
    row->addSpacing(6);
    auto* const condition = new QLabel(tr("while no geometry is stored"));
    condition->setWordWrap(true);
    row->addWidget(condition, 1);
    return row;
}

QLayout* OpenFilesPage::makeButtons()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(m_open);
    row->addWidget(m_forget);
    row->addStretch(1);
    return row;
}

void OpenFilesPage::connectOptions()
{
    connect(m_startFolder, &QLineEdit::textChanged, this, [this] { checkOptions(); });
    connect(m_folder, &QRadioButton::toggled, this, [this] { checkOptions(); });
    connect(m_withHelp, &QCheckBox::toggled, m_helpTopic, &QWidget::setEnabled);
    connect(m_open, &QPushButton::clicked, this, [this] { openDialog(); });
    connect(m_forget, &QPushButton::clicked, this, [this] { forgetGeometry(); });
}

QFileDialog::FileMode OpenFilesPage::fileMode() const
{
    if (m_folder->isChecked()) {
        return QFileDialog::Directory;
    }
    return m_severalFiles->isChecked() ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
}

QString OpenFilesPage::startFolderProblem() const
{
    const QString path = m_startFolder->text();
    if (path.isEmpty() || QFileInfo(path).isDir()) {
        return QString();
    }
    return QFileInfo::exists(path) ? tr("This is a file, not a folder.") : tr("There is no such folder.");
}

void OpenFilesPage::checkOptions()
{
    const QString problem = startFolderProblem();
    m_startFolderNote->setText(problem);
    m_open->setEnabled(problem.isEmpty());
    m_filters->setEnabled(!m_folder->isChecked());
}

void OpenFilesPage::openDialog()
{
    checkOptions();
    if (!m_open->isEnabled()) {
        return;
    }
    const std::string topic = m_withHelp->isChecked() ? m_helpTopic->text().toStdString() : std::string();
    const std::string filters = m_folder->isChecked() ? std::string() : m_filters->text().toStdString();
    QExtendedFileDialog dialog(*window(), tr("Open"), QDir::fromNativeSeparators(m_startFolder->text()), filters, topic,
        QFileDialog::AcceptOpen);
    dialog.setFileMode(fileMode());
    dialog.setShowDirectoriesOnly(fileMode() == QFileDialog::Directory);
    dialog.setGeometryPersistenceKey(dialogGeometryKey);
    dialog.setDefaultSize(QSize(m_width->value(), m_height->value()));
    dialog.performSelectedFileValidation(m_validate->isChecked());
    watch(dialog);
    if (dialog.exec() == QDialog::Accepted) {
        showChosen(dialog.selectedFiles());
    } else {
        Q_EMIT reported(tr("Dialog cancelled"));
    }
}

void OpenFilesPage::watch(QFileDialog& dialog)
{
    connect(&dialog, &QFileDialog::directoryEntered, this,
        [this](const QString& path) { Q_EMIT reported(tr("Folder entered: %1").arg(path)); });
    connect(&dialog, &QFileDialog::filterSelected, this,
        [this](const QString& filter) { Q_EMIT reported(tr("Name filter picked: %1").arg(filter)); });
    Q_EMIT reported(tr("Dialog opened in %1").arg(QDir::toNativeSeparators(dialog.directory().path())));
}

void OpenFilesPage::showChosen(const QStringList& files)
{
    for (const QString& line : m_chosen->showFiles(files)) {
        Q_EMIT reported(line);
    }
}

void OpenFilesPage::forgetGeometry()
{
    morvane::ApplicationSettings::getInstance().depositValue(dialogGeometryKey, QByteArray());
    Q_EMIT reported(tr("The stored geometry of the dialog was deleted"));
}

} // namespace gallery
