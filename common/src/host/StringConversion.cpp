#include "host/StringConversion.h"

#include <QString>

namespace morvane {

std::wstring utf8ToWideString(const std::string& utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size())).toStdWString();
}

} // namespace morvane
