// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/Desktop.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace morvane::test {

/** The role of a button for screen readers. */
inline const QString pushButton = QStringLiteral("push button");

/**
 * The gallery on a desktop of its own, and its user with keyboard and mouse. A wait that exceeds its time limit ends
 * the test.
 */
class GallerySession : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /** Opens the gallery on this page, with the folder of the test as the home directory. */
    void openGallery(const QString& page);
    /** Closes it as a person does, and expects that it ends without an error. */
    void closeGallery();

    Screen& screen() { return m_desktop.screen(); }
    Desktop& desktop() { return m_desktop; }

    /** Waits for a showing part of the gallery, or of @p whole. */
    Accessible part(const QString& role, const QString& name);
    Accessible partOf(const Accessible& whole, const QString& role, const QString& name);
    /** A cell or an item of a list, table or tree. */
    Accessible itemOf(const Accessible& whole, const QString& name);

    /** Waits until the items with these names are in this order, that is, until the list is read and sorted. */
    void waitForOrder(const Accessible& whole, const QStringList& names);

    void click(const Accessible& target);
    /**
     * Clicks on a field and waits until it has the focus. Keys can overtake a click in the window manager, so the
     * focus is what shows that the click has arrived. Therefore the field must not have the focus already, and must not
     * be about to get it without the click.
     */
    void clickInto(const Accessible& field);
    /** Types over the text of the field, which has the focus or gets it soon. */
    void type(const Accessible& field, const QString& text);
    void waitForText(const Accessible& field, const QString& text);
    void waitForWindow(const QString& title);
    void waitForFocus(const Accessible& target);
    /** Waits until the part is no longer shown. */
    void waitForEnd(const Accessible& target);
    /** Waits until a list, menu or tip is open above the windows, and returns its place. */
    QRect waitForPopup();
    /** Waits until the pane of reports contains @p text, and returns the rest of that entry. */
    QString waitForReport(const QString& text);
    /** Waits until another program reads this text from the clipboard. */
    void expectOnClipboard(const QByteArray& text);
    /** What another program reads from the clipboard now; empty if it has no text. */
    QByteArray clipboardText();

    QString path(const QString& name) const { return m_folder.filePath(name); }
    void makeFile(const QString& name, const QByteArray& content = QByteArray()) const;
    QByteArray contentOf(const QString& name) const;

    const QString galleryTitle = QStringLiteral("Morvane Gallery");

private:
    /** Reports a picture of the screen and the output of the gallery. */
    void describe();

    QTemporaryDir m_folder;
    Desktop m_desktop;
    std::unique_ptr<DesktopProcess> m_gallery;
    std::optional<Accessible> m_application;
};

} // namespace morvane::test
