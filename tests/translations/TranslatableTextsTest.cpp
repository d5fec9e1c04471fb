// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// With a translator that marks each text, every text that a person sees or hears has a mark, or comes from the host.

#include "host/HelpLauncher.h"
#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/RecordingSettings.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTranslator>

#include <boost/make_shared.hpp>

#include <optional>

namespace {

using namespace morvane::test;

constexpr ushort mark = 0x203B;

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
bool isForgotten(const QString& text)
{
    const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    return hasLetters && !text.contains(QChar(mark)) && !text.contains(QLatin1String("host"));
}

QStringList textsOf(const QWidget& widget)
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

TEST_F(TranslatableTexts, nativeDialogWithControlsAndHelp)
{
    QWidget parent;
    ExtendedWinFileDialog dialog(
        parent, "host caption", m_folder.path().toStdString(), "*.dat", "host-topic", QFileDialog::AcceptOpen, true);
    dialog.addCustomCheckBox("host box", boost::make_shared<morvane::Property<bool>>(true));
    dialog.addAcceptButtonOption("host option", 1);
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& window) {
        expectTranslated(window);
        const auto buttons = window.findChildren<QAbstractButton*>();
        EXPECT_TRUE(std::any_of(buttons.begin(), buttons.end(),
            [](const QAbstractButton* button) { return button->text() == QString("&Help") + QChar(mark); }));
        window.reject();
    });
    dialog.exec();
    EXPECT_TRUE(user.finished());
}

TEST_F(TranslatableTexts, qtDialogWithHelp)
{
    QWidget parent;
    QExtendedFileDialog dialog(parent, "host caption", m_folder.path().toStdString(), "host files (*.dat)",
        "host-topic", QFileDialog::AcceptOpen);
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& window) {
        expectTranslated(window);
        window.reject();
    });
    dialog.exec();
    EXPECT_TRUE(user.finished());
}

TEST_F(TranslatableTexts, questionsOfTheSaveFlow)
{
    QFile existing(path("host.dat"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    QWidget parent;
    SaveFileDialog dialog(&parent, "host caption", m_folder.path().toStdString(), "host.dat", "host (*.dat)", "");
    ModalScript user;
    user.on<QFileDialog>(FileDialogDriver::playing([](FileDialogDriver& driver) { driver.pressAccept(); }));
    user.on<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(QChar(mark))) << box.text().toStdString();
        expectTranslated(box);
        box.button(QMessageBox::No)->click();
    });
    user.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
    EXPECT_FALSE(dialog.launch());
    EXPECT_TRUE(user.finished());
}

TEST_F(TranslatableTexts, helpThatCannotBeShown)
{
    ModalScript user;
    user.on<QMessageBox>([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(QChar(mark)));
        EXPECT_TRUE(box.windowTitle().contains(QChar(mark)));
        expectTranslated(box);
        box.accept();
    });
    morvane::HelpLauncher().showHelp("host-topic");
    EXPECT_TRUE(user.finished());
}

} // namespace
