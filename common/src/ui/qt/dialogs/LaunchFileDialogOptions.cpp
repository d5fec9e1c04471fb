// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/LaunchFileDialogOptions.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <QCoreApplication>

#include <string>
#include <vector>

namespace morvane::ui {

namespace {

std::vector<std::string> toStdStrings(const QStringList& texts)
{
    std::vector<std::string> result;
    result.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts) {
        result.push_back(text.toStdString());
    }
    return result;
}

QStringList toQStrings(const std::vector<std::string>& texts)
{
    QStringList result;
    for (const std::string& text : texts) {
        result.append(QString::fromStdString(text));
    }
    return result;
}

QStringList filtersOrAll(const QStringList& nameFilters)
{
    return nameFilters.isEmpty()
               ? QStringList(QCoreApplication::translate("morvane::ui::LaunchFileDialogOptions", "All files (*)"))
               : nameFilters;
}

} // namespace

struct LaunchFileDialogOptions::Impl
{
    QString caption;
    QStringList nameFilters;
    int initialFilterIndex = 0;
    QStringList initialSelection;
    bool saveMode = false;
    bool allowMultiple = false;
};

LaunchFileDialogOptions::LaunchFileDialogOptions() : m_impl(std::make_unique<Impl>()) {}

LaunchFileDialogOptions::LaunchFileDialogOptions(const LaunchFileDialogOptions& other)
    : m_impl(std::make_unique<Impl>(*other.m_impl))
{
}

LaunchFileDialogOptions& LaunchFileDialogOptions::operator=(const LaunchFileDialogOptions& other)
{
    *m_impl = *other.m_impl;
    return *this;
}

LaunchFileDialogOptions::~LaunchFileDialogOptions() = default;

LaunchFileDialogOptions& LaunchFileDialogOptions::setCaption(const QString& caption)
{
    m_impl->caption = caption;
    return *this;
}

QString LaunchFileDialogOptions::caption() const
{
    return m_impl->caption;
}

LaunchFileDialogOptions& LaunchFileDialogOptions::setNameFilters(const QStringList& nameFilters)
{
    m_impl->nameFilters = nameFilters;
    return *this;
}

QStringList LaunchFileDialogOptions::nameFilters() const
{
    return filtersOrAll(m_impl->nameFilters);
}

LaunchFileDialogOptions& LaunchFileDialogOptions::setInitialFilterIndex(int index)
{
    m_impl->initialFilterIndex = index;
    return *this;
}

int LaunchFileDialogOptions::initialFilterIndex() const
{
    return m_impl->initialFilterIndex;
}

LaunchFileDialogOptions& LaunchFileDialogOptions::setInitialSelection(const QStringList& paths)
{
    m_impl->initialSelection = paths;
    return *this;
}

QStringList LaunchFileDialogOptions::initialSelection() const
{
    return m_impl->initialSelection;
}

LaunchFileDialogOptions& LaunchFileDialogOptions::setSaveMode(bool saveMode)
{
    m_impl->saveMode = saveMode;
    return *this;
}

bool LaunchFileDialogOptions::saveMode() const
{
    return m_impl->saveMode;
}

LaunchFileDialogOptions& LaunchFileDialogOptions::setAllowMultiple(bool allowMultiple)
{
    m_impl->allowMultiple = allowMultiple;
    return *this;
}

bool LaunchFileDialogOptions::allowMultiple() const
{
    return m_impl->allowMultiple;
}

bool LaunchFileDialog(QStringList& files, int& filterIndex, const LaunchFileDialogOptions& options)
{
    std::vector<std::string> chosen;
    if (!LaunchFileDialog(chosen, filterIndex, options.caption().toStdString(), toStdStrings(options.nameFilters()),
            toStdStrings(options.initialSelection()), options.saveMode(), options.allowMultiple(),
            options.initialFilterIndex())) {
        return false;
    }
    files = toQStrings(chosen);
    return true;
}

bool LaunchFileDialog(QStringList& files, const LaunchFileDialogOptions& options)
{
    int filterIndex = 0;
    return LaunchFileDialog(files, filterIndex, options);
}

} // namespace morvane::ui
