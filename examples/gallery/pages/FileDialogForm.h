// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFlags>
#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QLineEdit;

namespace gallery {

class InlineNote;

/** The settings that a host can make for any file dialog before it opens. A page can add its own rows to rows(). */
class FileDialogForm : public QWidget
{
    Q_OBJECT

public:
    enum Part
    {
        NativeSwitch = 1,
        Filters = 2,
        StartFile = 4
    };
    Q_DECLARE_FLAGS(Parts, Part)

    /** @param parts the rows in addition to the start folder and the help topic, which always exist */
    FileDialogForm(Parts parts, const QString& startFile, const QString& helpTopic);

    QFormLayout& rows() { return *m_rows; }
    /** Adds a field to the row of the native switch. */
    void addOption(QWidget* field);

    /** Whether the start folder can be used. If not, a note shows the reason. */
    bool isUsable() const;
    /** With forward slashes; may be empty. */
    std::string startFolder() const;
    std::string startFile() const;
    /** The name filters, joined by `;;`. */
    std::string filters() const;
    std::vector<std::string> filterList() const;
    /** Position in filterList(); -1 if that is empty. */
    int startType() const;
    std::string helpTopic() const;

    QCheckBox& nativeField() { return *m_native; }
    QLineEdit& folderField() { return *m_folder; }
    QLineEdit& fileField() { return *m_file; }
    QLineEdit& filtersField() { return *m_filters; }
    QComboBox& typeField() { return *m_type; }
    QLineEdit& helpTopicField() { return *m_helpTopic; }
    QString note() const;

Q_SIGNALS:
    void usableChanged(bool usable);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showSwitch();
    void checkFolder();
    void listTypes();

    QFormLayout* m_rows;
    QHBoxLayout* m_options;
    QCheckBox* m_native;
    QLineEdit* m_filters;
    QComboBox* m_type;
    QLineEdit* m_folder;
    InlineNote* m_note;
    QLineEdit* m_file;
    QLineEdit* m_helpTopic;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FileDialogForm::Parts)

} // namespace gallery
