#include "host/ApplicationSettings.h"

#include <QFile>
#include <QFileInfo>
#include <QMessageLogger>
#include <QSettings>
#include <QStandardPaths>

#include <map>

namespace morvane {

namespace {

ApplicationSettings* replacementInstance = nullptr;

enum class FileState
{
    Missing,
    Intact,
    Damaged,
    Unreadable
};

bool isIniLine(const QByteArray& line)
{
    const QByteArray text = line.trimmed();
    return text.isEmpty() || text.startsWith(';') || (text.startsWith('[') && text.endsWith(']')) || text.contains('=');
}

// QSettings parses lazily, reports damage once for each process and writes over it; so the file is looked at here
// first.
FileState inspect(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.exists()) {
        return info.isSymLink() ? FileState::Unreadable : FileState::Missing;
    }
    QFile file(fileName);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        return FileState::Unreadable;
    }
    const QByteArray content = file.readAll();
    if (content.size() != file.size() || content.contains('\0')) {
        return FileState::Damaged;
    }
    for (const QByteArray& line : content.split('\n')) {
        if (!isIniLine(line)) {
            return FileState::Damaged;
        }
    }
    return FileState::Intact;
}

bool moveAside(const QString& fileName)
{
    const QString base = fileName + QStringLiteral(".damaged");
    QString target = base;
    for (int number = 2; QFileInfo::exists(target); ++number) {
        target = base + QLatin1Char('-') + QString::number(number);
    }
    return QFile::rename(fileName, target);
}

/** A key that QSettings leaves alone: no separators, no empty name, nothing that differs in case only. */
QString storedKey(const std::string& key)
{
    static const char digits[] = "0123456789abcdef";
    QString encoded = QStringLiteral("values/_");
    for (const char c : key) {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.') {
            encoded += QLatin1Char(c);
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded += QLatin1Char('_');
            encoded += QLatin1Char(digits[byte >> 4]);
            encoded += QLatin1Char(digits[byte & 15]);
        }
    }
    return encoded;
}

} // namespace

struct ApplicationSettings::Impl
{
    explicit Impl(const QString& name) : fileName(name) {}

    void warnOnce(const char* what)
    {
        if (!warned) {
            warned = true;
            QMessageLogger().warning("Warning: %s: %s", what, fileName.toUtf8().constData());
        }
    }

    bool makeWritable()
    {
        switch (inspect(fileName)) {
        case FileState::Missing:
        case FileState::Intact:
            return true;
        case FileState::Damaged:
            warnOnce("The settings file is damaged");
            return moveAside(fileName);
        case FileState::Unreadable:
            break;
        }
        return false;
    }

    bool write(const QString& key, const QByteArray& value)
    {
        if (!makeWritable()) {
            return false;
        }
        QSettings file(fileName, QSettings::IniFormat);
        file.setValue(key, value);
        file.sync();
        return file.status() == QSettings::NoError;
    }

    const QString fileName;
    bool warned = false;
    std::map<std::string, QByteArray> unwritten;
};

ApplicationSettings& ApplicationSettings::getInstance()
{
    if (replacementInstance) {
        return *replacementInstance;
    }
    static ApplicationSettings defaultInstance;
    return defaultInstance;
}

ApplicationSettings* ApplicationSettings::setInstance(ApplicationSettings* replacement)
{
    ApplicationSettings* const previous = replacementInstance;
    replacementInstance = replacement;
    return previous;
}

QString ApplicationSettings::defaultFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + QStringLiteral("/settings.ini");
}

ApplicationSettings::ApplicationSettings(const QString& fileName)
    : m_impl(std::make_unique<Impl>(QFileInfo(fileName).absoluteFilePath()))
{
}

ApplicationSettings::~ApplicationSettings() = default;

QByteArray ApplicationSettings::getByteArrayValue(const std::string& key)
{
    const auto unwritten = m_impl->unwritten.find(key);
    if (unwritten != m_impl->unwritten.end()) {
        return unwritten->second;
    }
    const FileState state = inspect(m_impl->fileName);
    if (state == FileState::Missing) {
        return QByteArray();
    }
    if (state != FileState::Intact) {
        m_impl->warnOnce(
            state == FileState::Damaged ? "The settings file is damaged" : "The settings file cannot be read");
        return QByteArray();
    }
    const QVariant value = QSettings(m_impl->fileName, QSettings::IniFormat).value(storedKey(key));
    if (value.isValid() && value.type() != QVariant::ByteArray) {
        m_impl->warnOnce("The settings file is damaged");
        return QByteArray();
    }
    return value.toByteArray();
}

void ApplicationSettings::depositValue(const std::string& key, const QByteArray& value)
{
    if (m_impl->write(storedKey(key), value)) {
        m_impl->unwritten.erase(key);
        return;
    }
    m_impl->warnOnce("The settings file cannot be written");
    m_impl->unwritten[key] = value;
}

} // namespace morvane
