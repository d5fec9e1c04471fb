// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"
#include "ui/qt/dialogs/FileDialogCustomization.h"
#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/QtText.h"

#include <QDir>
#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class ExtendedWinFileDialog;
class QExtendedFileDialog;
class QWidget;
namespace morvane::ui {
struct ParentlessFileDialog;
}

/**
 * One interface for the native file dialog (ExtendedWinFileDialog) and the file dialog made of Qt widgets
 * (QExtendedFileDialog). The constructor reads the process-wide switch and creates one of the two.
 *
 * @snippet 12-native-or-qt/main.cpp dialog
 *
 * The parent may be destroyed at any time, also while exec() runs; exec() then returns QDialog::Rejected. The Qt dialog
 * is destroyed with the parent. After that, every operation of this object does nothing and returns an empty result.
 *
 * Use it once: construct it, configure it, run it, read the results, destroy it. Exceptions of the created dialog pass
 * to the caller. GUI thread only.
 */
class MORVANE_UI_EXPORT ExtendedFileDialog
{
public:
    /** Returns whether new dialogs are native; initially true. */
    static bool useNativeFileDialog();
    /** Sets the switch. Existing dialogs do not change. */
    static void setUseNativeFileDialog(bool on);

    /**
     * @param parent     the dialog is modal to the window of this widget
     * @param caption    window title, UTF-8
     * @param directory  start directory, UTF-8; empty: the dialog chooses
     * @param filter     name filters such as `Images (*.png *.jpg)`, joined by `;;`, UTF-8
     * @param helpTopic  adds a Help button that passes this topic to morvane::HelpLauncher; empty: no button
     * @param acceptMode open or save
     */
    ExtendedFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Caption = std::string, typename Directory = std::string, typename Filter = std::string,
        typename HelpTopic = std::string, morvane::ui::IfQtText<Caption, Directory, Filter, HelpTopic> = 0>
    ExtendedFileDialog(QWidget& parent, const Caption& caption, const Directory& directory, const Filter& filter,
        const HelpTopic& helpTopic, QFileDialog::AcceptMode acceptMode)
        : ExtendedFileDialog(parent, morvane::ui::utf8Text(caption), morvane::ui::utf8Text(directory),
              morvane::ui::utf8Text(filter), morvane::ui::utf8Text(helpTopic), acceptMode)
    {
    }
    virtual ~ExtendedFileDialog();
    ExtendedFileDialog(const ExtendedFileDialog&) = delete;
    ExtendedFileDialog& operator=(const ExtendedFileDialog&) = delete;

    /** Runs the dialog modally. Returns QDialog::Accepted or QDialog::Rejected. */
    int exec();

    /**
     * Sets the text of the name field to a file, or to a list of files in double quotes, separated by blanks. The
     * native dialog uses only the last component of each path.
     */
    void selectFile(const QString& file);
    ///@{
    /** Returns the chosen paths after exec() returned Accepted. The native dialog returns native paths. */
    QStringList selectedFiles();
    QStringList selectedFiles() const;
    ///@}
    /** Sets what the user may choose: an existing file, several existing files, any name, or a directory. */
    void setFileMode(QFileDialog::FileMode mode);
    ///@{
    /** Returns the directory that the dialog shows, or showed last. Before the first run it is the start directory. */
    QDir directory();
    QDir directory() const;
    ///@}
    /** Sets the start directory. */
    void setDirectory(const QString& directory);
    /**
     * Chooses a filter by its exact text. If the text is not in the list, the Qt dialog keeps the chosen filter; the
     * native dialog chooses none and opens with the first one.
     */
    void selectNameFilter(const QString& filter);
    ///@{
    /** Returns the name filters, one for each entry. */
    QStringList nameFilters();
    QStringList nameFilters() const;
    ///@}
    /** Replaces the name filters. */
    void setNameFilters(const QStringList& filters);
    ///@{
    /** Returns the text of the chosen filter; empty if none is chosen. */
    QString selectedNameFilter();
    QString selectedNameFilter() const;
    ///@}
    /** If true, the dialog does not ask before it accepts an existing file for saving. */
    void setDontConfirmOverwrite(bool on);
    /** If true, the Qt dialog lists only directories. The native dialog ignores it. */
    void setShowDirectoriesOnly(bool on);

    ///@{
    /** See the function of the same name in morvane::ui::FileDialogCustomization. */
    QWidget* addCustomButton(const std::string& text, boost::function<void()> action);
    QWidget* addCustomCheckBox(const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked);
    QWidget* addCustomComboBox(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<morvane::PropertyAbstract<int>> chosen);
    QWidget* addCustomRadioButtons(const std::string& label, const std::vector<std::string>& entries,
        boost::shared_ptr<morvane::PropertyAbstract<int>> chosen);
    QWidget* addCustomLineEdit(
        const std::string& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text);
    QWidget* addCustomText(const std::string& text);
    QWidget* addCustomSeparator();
    QWidget* beginCustomGroup(const std::string& label);
    void endCustomGroup();
    QWidget* customEntry(const QWidget* control, int position);
    void setAcceptanceCheck(morvane::ui::FileDialogCustomization::AcceptanceCheck check);
    void setAcceptButtonText(const std::string& text);
    void setFileNameLabel(const std::string& label);
    void addPlace(const std::string& folder, morvane::ui::FileDialogCustomization::Place where);
    void setMemoryKey(const std::string& key);
    void clearMemory();
    ///@}
    ///@{
    /** The same with texts of Qt, see morvane::ui::isQtText. */
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomButton(const Text& text, boost::function<void()> action)
    {
        return addCustomButton(morvane::ui::utf8Text(text), std::move(action));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomCheckBox(const Text& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
    {
        return addCustomCheckBox(morvane::ui::utf8Text(text), std::move(checked));
    }
    template <typename Label = std::string, typename Entries = morvane::ui::BracedTexts,
        morvane::ui::IfQtText<Label, Entries> = 0>
    QWidget* addCustomComboBox(
        const Label& label, const Entries& entries, boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
    {
        return addCustomComboBox(morvane::ui::utf8Text(label), morvane::ui::utf8Texts(entries), std::move(chosen));
    }
    template <typename Label = std::string, typename Entries = morvane::ui::BracedTexts,
        morvane::ui::IfQtText<Label, Entries> = 0>
    QWidget* addCustomRadioButtons(
        const Label& label, const Entries& entries, boost::shared_ptr<morvane::PropertyAbstract<int>> chosen)
    {
        return addCustomRadioButtons(morvane::ui::utf8Text(label), morvane::ui::utf8Texts(entries), std::move(chosen));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomLineEdit(const Text& label, boost::shared_ptr<morvane::PropertyAbstract<std::string>> text)
    {
        return addCustomLineEdit(morvane::ui::utf8Text(label), std::move(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* addCustomText(const Text& text)
    {
        return addCustomText(morvane::ui::utf8Text(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    QWidget* beginCustomGroup(const Text& label)
    {
        return beginCustomGroup(morvane::ui::utf8Text(label));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setAcceptButtonText(const Text& text)
    {
        setAcceptButtonText(morvane::ui::utf8Text(text));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setFileNameLabel(const Text& label)
    {
        setFileNameLabel(morvane::ui::utf8Text(label));
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void addPlace(const Text& folder, morvane::ui::FileDialogCustomization::Place where)
    {
        addPlace(morvane::ui::utf8Text(folder), where);
    }
    template <typename Text, morvane::ui::IfQtText<Text> = 0>
    void setMemoryKey(const Text& key)
    {
        setMemoryKey(morvane::ui::utf8Text(key));
    }
    ///@}

    /**
     * The same functions as an object, which the other file dialogs have, too. Null after the Qt dialog was destroyed
     * with its parent.
     */
    morvane::ui::FileDialogCustomization* customization();

private:
    friend struct morvane::ui::ParentlessFileDialog;

    /**
     * The position of the chosen filter in the host's list; the first one among equal filters; -1 if none is chosen.
     */
    int chosenFilter();

    // For callers that may have no parent.
    ExtendedFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
        const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode);

    static bool m_useNativeFileDialog;

    std::unique_ptr<QExtendedFileDialog> m_qtDialog;
    std::unique_ptr<ExtendedWinFileDialog> m_winDialog;
};
