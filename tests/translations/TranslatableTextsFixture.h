// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/InstanceOverride.h"
#include "support/RecordingSettings.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>
#include <optional>

namespace morvane::test {

inline constexpr ushort mark = 0x203B;

class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QString::fromUtf8(sourceText) + QChar(mark);
    }
    bool isEmpty() const override { return false; }
};

/** Whether a text is not translated: it has letters, no mark, and does not come from the host. */
inline bool isForgotten(const QString& text)
{
    const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    return hasLetters && !text.contains(QChar(mark)) && !text.contains(QLatin1String("host"));
}

inline QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.windowTitle(), widget.toolTip(), widget.statusTip(), widget.accessibleName(),
        widget.accessibleDescription()};
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        texts.append(button->text());
    } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        texts.append(label->text());
    } else if (const auto* const box = qobject_cast<const QMessageBox*>(&widget)) {
        texts.append(box->text());
    } else if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
        if (list->objectName() == QLatin1String("fileTypeCombo")) {
            texts.append(list->currentText());
        }
    }
    return texts;
}

class TranslatableTexts : public ::testing::Test
{
protected:
    TranslatableTexts()
    {
        if (QGuiApplication::platformName() == QLatin1String("windows")) {
            m_widgets.emplace(m_shell);
        }
        QCoreApplication::installTranslator(&m_translator);
    }

    void expectTranslated(const QWidget& window)
    {
        int seen = 0;
        QList<QWidget*> widgets = window.findChildren<QWidget*>();
        widgets.prepend(const_cast<QWidget*>(&window));
        for (const QWidget* const widget : widgets) {
            for (const QString& text : textsOf(*widget)) {
                EXPECT_FALSE(isForgotten(text)) << widget->metaObject()->className() << ' '
                                                << widget->objectName().toStdString() << ": " << text.toStdString();
                seen += text.contains(QChar(mark));
            }
        }
        EXPECT_GT(seen, 0) << "the translator has no effect";
    }
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/host-XXXXXX")};

private:
    morvane::ui::WidgetShell m_shell{morvane::ui::WidgetShell::Appearance::AlwaysWidgets};
    std::optional<morvane::ui::ShellOverride> m_widgets;
    RecordingSettings m_settings;
    morvane::InstanceOverride<morvane::ApplicationSettings> m_settingsOverride{m_settings};
    MarkingTranslator m_translator;
};

} // namespace morvane::test
