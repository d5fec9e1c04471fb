// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QtGlobal>

#include <vector>

namespace morvane::test {

/** Collects the messages of Qt's message log while it exists; they do not appear on the terminal. */
class MessageLog
{
public:
    struct Entry
    {
        QtMsgType type;
        QString text;
        bool hasContext; ///< carries file, line or function
    };

    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    const std::vector<Entry>& entries() const { return m_entries; }
    QStringList texts(QtMsgType type) const;

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static MessageLog* s_current;
    MessageLog* m_previous;
    QtMessageHandler m_previousHandler;
    std::vector<Entry> m_entries;
};

} // namespace morvane::test
