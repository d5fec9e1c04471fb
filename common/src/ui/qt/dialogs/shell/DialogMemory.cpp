// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/DialogMemory_p.h"

#include "host/ApplicationSettings.h"

namespace morvane::ui {

namespace {

const char* const folderName = "/Folder";
const char* const geometryName = "/Geometry";

} // namespace

std::string DialogMemory::geometryKey() const
{
    return m_key + geometryName;
}

QString DialogMemory::folder() const
{
    return QString::fromUtf8(read(folderName));
}

void DialogMemory::keepFolder(const QString& folder) const
{
    keep(folderName, folder.toUtf8());
}

QByteArray DialogMemory::geometry() const
{
    return read(geometryName);
}

void DialogMemory::keepGeometry(const QByteArray& geometry) const
{
    keep(geometryName, geometry);
}

void DialogMemory::clear() const
{
    keep(folderName, QByteArray());
    keep(geometryName, QByteArray());
}

QByteArray DialogMemory::read(const char* what) const
{
    return m_key.empty() ? QByteArray() : ApplicationSettings::getInstance().getByteArrayValue(m_key + what);
}

void DialogMemory::keep(const char* what, const QByteArray& value) const
{
    if (!m_key.empty()) {
        ApplicationSettings::getInstance().depositValue(m_key + what, value);
    }
}

} // namespace morvane::ui
