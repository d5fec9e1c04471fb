#include "host/SettingsDocument.h"

#include <QCryptographicHash>

namespace morvane {

namespace {

const char sectionHeader[] = "[values]";
const int checksumLength = 8;
const auto base64Options = QByteArray::Base64Encoding | QByteArray::OmitTrailingEquals;

/** Nothing in it needs an escape in an INI file, and no two names differ in case only. */
QByteArray encodedName(const std::string& key)
{
    static const char digits[] = "0123456789abcdef";
    QByteArray name("_");
    for (const char c : key) {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.') {
            name += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            name += '_';
            name += digits[byte >> 4];
            name += digits[byte & 15];
        }
    }
    return name;
}

QByteArray encodedValue(const QByteArray& name, const QByteArray& value)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(name + '=');
    hash.addData(value);
    return hash.result().toHex().left(checksumLength) + value.toBase64(base64Options);
}

bool isBlankOrComment(const QByteArray& text)
{
    return text.isEmpty() || text.startsWith(';');
}

bool isSectionHeader(const QByteArray& text)
{
    return text.startsWith('[') && text.endsWith(']');
}

} // namespace

std::optional<SettingsDocument> SettingsDocument::parse(const QByteArray& content)
{
    if (content.contains('\0')) {
        return std::nullopt;
    }
    SettingsDocument document;
    bool inValues = false;
    for (const QByteArray& line : content.split('\n')) {
        const QByteArray text = line.trimmed();
        if (isSectionHeader(text)) {
            inValues = text == sectionHeader;
        }
        if (isBlankOrComment(text) || (!inValues && (isSectionHeader(text) || text.contains('=')))) {
            document.m_foreignLines.append(line);
        } else if (text != sectionHeader && !document.addValueLine(text)) {
            return std::nullopt;
        }
    }
    while (!document.m_foreignLines.isEmpty() && document.m_foreignLines.last().trimmed().isEmpty()) {
        document.m_foreignLines.removeLast();
    }
    return document;
}

bool SettingsDocument::addValueLine(const QByteArray& line)
{
    const int separator = line.indexOf('=');
    if (separator < 0) {
        return false;
    }
    const QByteArray name = line.left(separator);
    const QByteArray encoded = line.mid(separator + 1);
    const QByteArray value = QByteArray::fromBase64(encoded.mid(checksumLength), base64Options);
    if (encodedValue(name, value) != encoded) {
        return false;
    }
    m_values[name] = value;
    return true;
}

QByteArray SettingsDocument::value(const std::string& key) const
{
    const auto found = m_values.find(encodedName(key));
    return found == m_values.end() ? QByteArray() : found->second;
}

void SettingsDocument::setValue(const std::string& key, const QByteArray& value)
{
    m_values[encodedName(key)] = value;
}

QByteArray SettingsDocument::toByteArray() const
{
    QByteArray content;
    for (const QByteArray& line : m_foreignLines) {
        content += line + '\n';
    }
    content += QByteArray(sectionHeader) + '\n';
    for (const auto& [name, value] : m_values) {
        content += name + '=' + encodedValue(name, value) + '\n';
    }
    return content;
}

} // namespace morvane
