// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace morvane::ui {

/**
 * The arguments of LaunchFileDialog() by their names, as texts of Qt. Each setter returns the object, so that calls can
 * follow one another. What is not set keeps its initial value.
 *
 * @snippet 01-open-files/main.cpp launch
 */
class MORVANE_UI_EXPORT LaunchFileDialogOptions
{
public:
    LaunchFileDialogOptions();
    ///@{
    /** A copy is equal and independent. */
    LaunchFileDialogOptions(const LaunchFileDialogOptions& other);
    LaunchFileDialogOptions& operator=(const LaunchFileDialogOptions& other);
    ///@}
    ~LaunchFileDialogOptions();

    ///@{
    /** The window title. Initially empty: the dialog chooses one. */
    LaunchFileDialogOptions& setCaption(const QString& caption);
    QString caption() const;
    ///@}

    ///@{
    /** One filter for each entry, such as `Images (*.png *.jpg)`. Initially, and if empty, all files. */
    LaunchFileDialogOptions& setNameFilters(const QStringList& nameFilters);
    QStringList nameFilters() const;
    ///@}

    ///@{
    /** The position of the filter at the start. Initially 0; out of range, it is the first filter. */
    LaunchFileDialogOptions& setInitialFilterIndex(int index);
    int initialFilterIndex() const;
    ///@}

    ///@{
    /** Paths as in LaunchFileDialog(). Initially empty: the dialog chooses the folder. */
    LaunchFileDialogOptions& setInitialSelection(const QStringList& paths);
    QStringList initialSelection() const;
    ///@}

    ///@{
    /** Whether it is a save dialog, in which the file need not exist. Initially false. */
    LaunchFileDialogOptions& setSaveMode(bool saveMode = true);
    bool saveMode() const;
    ///@}

    ///@{
    /** Whether the user may pick several files. Initially false. */
    LaunchFileDialogOptions& setAllowMultiple(bool allowMultiple = true);
    bool allowMultiple() const;
    ///@}

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

/**
 * LaunchFileDialog() with options by their names and texts of Qt.
 *
 * @param[out] files       set to the chosen files if the user accepts; otherwise not changed
 * @param[out] filterIndex set if the user accepts, otherwise not changed: the position of the chosen filter, or -1 if
 *                         none is chosen
 * @return whether the user accepted; if true, @p files has at least one file
 *
 * @snippet 01-open-files/main.cpp launch
 */
MORVANE_UI_EXPORT bool LaunchFileDialog(QStringList& files, int& filterIndex, const LaunchFileDialogOptions& options);

/** The same if the chosen filter does not matter. */
MORVANE_UI_EXPORT bool LaunchFileDialog(QStringList& files, const LaunchFileDialogOptions& options);

} // namespace morvane::ui
