// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ImportOptions.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <boost/make_shared.hpp>

namespace gallery {

namespace {

const std::vector<std::string> encodings{"UTF-8", "UTF-16", "Latin 1"};
const std::vector<std::string> units{"&Millimetres", "&Inches"};

class NoQuestionMark : public morvane::ValidatorInterface<std::string>
{
public:
    morvane::ValidationResult validate(const std::string& comment) const override
    {
        return comment.find('?') == std::string::npos ? morvane::ValidationResult()
                                                      : morvane::ValidationResult("A comment has no question mark.");
    }
};

} // namespace

ImportOptions::ImportOptions()
    : QGroupBox(tr("Shared with the dialog")),
      m_encoding(boost::make_shared<morvane::Property<int>>(0)),
      m_unit(boost::make_shared<morvane::Property<int>>(0)),
      m_comment(boost::make_shared<morvane::Property<std::string>>()),
      m_encodingField(new QComboBox),
      m_millimetres(new QRadioButton(tr("Millimetres"))),
      m_inches(new QRadioButton(tr("Inches"))),
      m_commentField(new QLineEdit)
{
    auto* const row = new QHBoxLayout;
    row->addWidget(m_encodingField);
    row->addSpacing(12);
    row->addWidget(m_millimetres);
    row->addWidget(m_inches);
    row->addStretch(1);
    auto* const form = new QFormLayout(this);
    auto* const label = new QLabel(tr("En&coding, unit:"));
    label->setBuddy(m_encodingField);
    form->addRow(label, row);
    form->addRow(tr("Comm&ent:"), m_commentField);
    m_encodingField->setAccessibleName(tr("Encoding"));
    m_comment->setValidator(boost::make_shared<NoQuestionMark>());
    bindEncoding();
    bindUnit();
    bindComment();
}

void ImportOptions::bindEncoding()
{
    for (const std::string& encoding : encodings) {
        m_encodingField->addItem(QString::fromStdString(encoding));
    }
    connect(m_encodingField, QOverload<int>::of(&QComboBox::activated), this,
        [this](int position) { m_encoding->setValue(position); });
    m_encoding->signalValueChanged.connect([this](const int& position) {
        m_encodingField->setCurrentIndex(position);
        Q_EMIT reported(tr("Encoding is now %1").arg(m_encodingField->currentText()));
    });
}

void ImportOptions::bindUnit()
{
    m_millimetres->setChecked(true);
    connect(m_inches, &QRadioButton::toggled, this, [this](bool on) { m_unit->setValue(on ? 1 : 0); });
    m_unit->signalValueChanged.connect([this](const int& position) {
        (position == 1 ? m_inches : m_millimetres)->setChecked(true);
        Q_EMIT reported(position == 1 ? tr("Unit is now inches") : tr("Unit is now millimetres"));
    });
}

void ImportOptions::bindComment()
{
    connect(m_commentField, &QLineEdit::textEdited, this, [this](const QString& text) {
        try {
            m_comment->setValue(text.toStdString());
        } catch (const morvane::InvalidPropertyValueException& rejection) {
            Q_EMIT reported(QString::fromUtf8(rejection.what()));
        }
    });
    m_comment->signalValueChanged.connect([this](const std::string& text) {
        const QString shown = QString::fromStdString(text);
        if (m_commentField->text() != shown) {
            m_commentField->setText(shown);
        }
        Q_EMIT reported(tr("Comment is now \"%1\"").arg(shown));
    });
}

void ImportOptions::addTo(morvane::ui::FileDialogCustomization& dialog, const std::string& place)
{
    dialog.addCustomComboBox("Enco&ding:", encodings, m_encoding);
    dialog.addCustomSeparator();
    dialog.beginCustomGroup("Numbers");
    dialog.addCustomText("Inches need a comment.");
    dialog.addCustomRadioButtons("Unit:", units, m_unit);
    dialog.addCustomLineEdit("&Comment:", m_comment);
    dialog.endCustomGroup();
    dialog.setFileNameLabel("Measureme&nt:");
    if (!place.empty()) {
        dialog.addPlace(place, morvane::ui::FileDialogCustomization::Place::Bottom);
    }
    dialog.setAcceptanceCheck([this](const QStringList&) {
        return m_unit->value() == 1 && m_comment->value().empty() ? morvane::ValidationResult("Inches need a comment.")
                                                                  : morvane::ValidationResult();
    });
}

} // namespace gallery
