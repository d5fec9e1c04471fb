// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/MessageLog.h"

namespace morvane::test {

MessageLog* MessageLog::s_current = nullptr;

MessageLog::MessageLog() : m_previous(s_current), m_previousHandler(qInstallMessageHandler(&MessageLog::handle))
{
    s_current = this;
}

MessageLog::~MessageLog()
{
    s_current = m_previous;
    qInstallMessageHandler(m_previousHandler);
}

QStringList MessageLog::texts(QtMsgType type) const
{
    QStringList result;
    for (const Entry& entry : m_entries) {
        if (entry.type == type) {
            result.append(entry.text);
        }
    }
    return result;
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool hasContext = context.file || context.line != 0 || context.function;
    s_current->m_entries.push_back({type, text, hasContext});
}

} // namespace morvane::test
