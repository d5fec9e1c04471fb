// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ApplicationSettings.h"

#include <functional>
#include <map>
#include <vector>

namespace morvane::test {

/** Settings in memory that record each call, for use with morvane::InstanceOverride. */
class RecordingSettings : public ApplicationSettings
{
public:
    enum class Kind
    {
        read,
        write,
    };

    struct Call
    {
        Kind kind;
        std::string key;
    };

    QByteArray getByteArrayValue(const std::string& key) override
    {
        note(Kind::read, key);
        const auto found = values.find(key);
        return found == values.end() ? QByteArray() : found->second;
    }

    void depositValue(const std::string& key, const QByteArray& value) override
    {
        values[key] = value;
        note(Kind::write, key);
    }

    /** The keys of the calls of one kind, in the order of the calls. */
    std::vector<std::string> keys(Kind kind) const
    {
        std::vector<std::string> result;
        for (const Call& call : calls) {
            if (call.kind == kind) {
                result.push_back(call.key);
            }
        }
        return result;
    }
    std::vector<std::string> written() const { return keys(Kind::write); }

    std::map<std::string, QByteArray> values;
    std::vector<Call> calls;
    std::function<void(Kind)> onCall; ///< called at each call, after a write has been stored

private:
    void note(Kind kind, const std::string& key)
    {
        calls.push_back({kind, key});
        if (onCall) {
            onCall(kind);
        }
    }
};

} // namespace morvane::test
