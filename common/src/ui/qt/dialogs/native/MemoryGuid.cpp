// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/native/MemoryGuid_p.h"

#include <QByteArray>
#include <QUuid>

#include <algorithm>
#include <iterator>

namespace morvane::ui {

GUID memoryGuid(const std::string& key)
{
    // Any identifier will do, but a change of it makes users lose what was kept.
    const QUuid keys(0x0b8f3c52, 0x6a1d, 0x4e0b, 0x9d, 0x57, 0x21, 0xc4, 0x8e, 0x7f, 0x93, 0x1a);
    const QUuid uuid = QUuid::createUuidV5(keys, QByteArray(key.data(), static_cast<int>(key.size())));
    GUID guid{};
    guid.Data1 = uuid.data1;
    guid.Data2 = uuid.data2;
    guid.Data3 = uuid.data3;
    std::copy(std::begin(uuid.data4), std::end(uuid.data4), std::begin(guid.Data4));
    return guid;
}

} // namespace morvane::ui
