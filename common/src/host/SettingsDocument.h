#pragma once

#include <QByteArray>
#include <QList>

#include <map>
#include <optional>
#include <string>

namespace morvane {

/**
 * The text of a settings file: one `name=value` line for each stored value in the section `[values]`.
 *
 * Names and values are encoded to plain ASCII, and each line carries a checksum of both, so that any damage to a line
 * is noticed. Comments and other sections are kept as they are.
 */
class SettingsDocument
{
public:
    /** Nothing when @p content is damaged. */
    static std::optional<SettingsDocument> parse(const QByteArray& content);

    QByteArray value(const std::string& key) const;
    void setValue(const std::string& key, const QByteArray& value);
    QByteArray toByteArray() const;

private:
    bool addValueLine(const QByteArray& line);

    QList<QByteArray> m_foreignLines;
    std::map<QByteArray, QByteArray> m_values;
};

} // namespace morvane
