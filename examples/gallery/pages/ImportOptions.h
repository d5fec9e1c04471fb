// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/Property.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"

#include <QGroupBox>

class QComboBox;
class QLineEdit;
class QRadioButton;

namespace gallery {

/**
 * Values that the user can change in a file dialog, with fields for them on a page. Fields and controls of an open
 * dialog have the same values at every time.
 */
class ImportOptions : public QGroupBox
{
    Q_OBJECT

public:
    ImportOptions();

    /** Adds the controls to any file dialog of the library. @param place shown in its sidebar; empty: none */
    void addTo(morvane::ui::FileDialogCustomization& dialog, const std::string& place);

    int encoding() const { return m_encoding->value(); }
    int unit() const { return m_unit->value(); }
    QString comment() const { return QString::fromStdString(m_comment->value()); }
    QComboBox& encodingField() { return *m_encodingField; }
    QLineEdit& commentField() { return *m_commentField; }

Q_SIGNALS:
    /** A line for the log. */
    void reported(const QString& line);

private:
    void bindEncoding();
    void bindUnit();
    void bindComment();

    boost::shared_ptr<morvane::PropertyAbstract<int>> m_encoding;
    boost::shared_ptr<morvane::PropertyAbstract<int>> m_unit;
    boost::shared_ptr<morvane::PropertyAbstract<std::string>> m_comment;
    QComboBox* m_encodingField;
    QRadioButton* m_millimetres;
    QRadioButton* m_inches;
    QLineEdit* m_commentField;
};

} // namespace gallery
