// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <utility>

namespace morvane::ui {

/**
 * Keeps the folder and the size of dialogs in the host's ApplicationSettings, under a key. With an empty key it keeps
 * nothing.
 */
class DialogMemory
{
public:
    /** @param key the start of the keys in the settings */
    void setKey(std::string key) { m_key = std::move(key); }

    /** The key in the settings under which the geometry is kept. */
    std::string geometryKey() const;
    /** The path of the folder; empty if none was kept. */
    QString folder() const;
    void keepFolder(const QString& folder) const;
    /** The bytes of QWidget::saveGeometry(); empty if none were kept. */
    QByteArray geometry() const;
    void keepGeometry(const QByteArray& geometry) const;
    void clear() const;

private:
    QByteArray read(const char* what) const;
    void keep(const char* what, const QByteArray& value) const;

    std::string m_key;
};

} // namespace morvane::ui
