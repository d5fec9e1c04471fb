#pragma once

#include "e2e/Desktop.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace morvane::test {

/**
 * The gallery on a desktop of its own, and a person with keyboard and mouse in front of it. What is waited for and does
 * not come ends the test.
 */
class GallerySession : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /** Opens the gallery on this page, with the folder of the test as the home directory. */
    void openGallery(const QString& page);
    /** Closes it as a person does; it ends without a complaint. */
    void closeGallery();

    Screen& screen() { return m_desktop.screen(); }
    Desktop& desktop() { return m_desktop; }

    /** A showing part of a program, waited for. The gallery's unless given. */
    Accessible part(const QString& role, const QString& name);
    Accessible partOf(const Accessible& whole, const QString& role, const QString& name);
    /** A cell or an item of a list, table or tree. */
    Accessible itemOf(const Accessible& whole, const QString& name);

    /** Waits until those of the items that have one of the names stand in that order: until they are read and sorted.
     */
    void waitForOrder(const Accessible& whole, const QStringList& names);

    void click(const Accessible& target);
    /**
     * Gives a field the focus that does not have it, nor is about to get it. The window manager may let later keys
     * overtake a click, and a focus that was there before or comes by itself does not tell that the click is over.
     */
    void clickInto(const Accessible& field);
    /** Replaces what stands in the field that has the focus, or gets it soon, by typing. */
    void type(const Accessible& field, const QString& text);
    void waitForText(const Accessible& field, const QString& text);
    void waitForWindow(const QString& title);
    void waitForFocus(const Accessible& target);
    /** Waits until the part shows no longer. */
    void waitForEnd(const Accessible& target);
    /** Waits until a list, menu or tip lies on top of the windows, and tells where. */
    QRect waitForPopup();
    /** Waits for an entry in the pane with what the library reported; the rest of that entry. */
    QString waitForReport(const QString& text);
    /** Waits for that text on the clipboard, read by another program. */
    void expectOnClipboard(const QByteArray& text);

    QString path(const QString& name) const { return m_folder.filePath(name); }
    void makeFile(const QString& name, const QByteArray& content = QByteArray()) const;
    QByteArray contentOf(const QString& name) const;

    const QString galleryTitle = QStringLiteral("Morvane Gallery");

private:
    /** What the screen showed and the gallery said. */
    void describe();

    QTemporaryDir m_folder;
    Desktop m_desktop;
    std::unique_ptr<DesktopProcess> m_gallery;
    std::optional<Accessible> m_application;
};

} // namespace morvane::test
