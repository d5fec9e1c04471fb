// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/Property.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"

#include <QByteArray>
#include <QString>

namespace gallery {

struct Report;

/** How a report is saved, chosen in the file dialog. The values stay for the next dialog. */
class ReportOptions
{
public:
    ReportOptions();

    /** Adds the controls to any file dialog of the library: the native one, Qt's, and the save flow on either. */
    void addTo(morvane::ui::FileDialogCustomization& dialog);

    /** Puts the comment and the name of the encoding into a report. */
    void applyTo(Report& report) const;
    QByteArray encoded(const QString& text) const;
    /** A text that has been read from a file. */
    QString decoded(const QByteArray& content) const;
    QString encodingName() const;
    void reset();

private:
    boost::shared_ptr<morvane::PropertyAbstract<int>> m_encoding;
    boost::shared_ptr<morvane::PropertyAbstract<std::string>> m_comment;
};

} // namespace gallery
