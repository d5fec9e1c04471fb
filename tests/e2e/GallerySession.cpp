// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/GallerySession.h"

#include "e2e/Eventually.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

namespace morvane::test {

namespace {

const QString galleryProgram = QStringLiteral(MORVANE_GALLERY);
const QString pictureFolder = QStringLiteral(MORVANE_PICTURES);

/** Ends the test if @p holds is false, because the steps after it would only wait for their time limits. */
void require(bool holds, const QString& otherwise)
{
    if (!holds) {
        throw std::runtime_error(otherwise.toStdString());
    }
}

} // namespace

void GallerySession::SetUp()
{
    const QStringList missing = Desktop::missingPrograms();
    if (!missing.isEmpty()) {
        GTEST_SKIP() << "not installed: " << missing.join(QStringLiteral(", ")).toStdString();
    }
    ASSERT_TRUE(m_folder.isValid());
    ASSERT_EQ(m_desktop.start().toStdString(), "");
}

void GallerySession::TearDown()
{
    if (HasFailure() && m_application) {
        describe();
    }
    m_application.reset();
    m_gallery.reset();
    EXPECT_TRUE(m_desktop.end()) << "a program outlives the desktop";
}

void GallerySession::describe()
{
    const QString picture =
        QDir(pictureFolder)
            .filePath(QString::fromLatin1(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
                      QStringLiteral(".png"));
    QDir().mkpath(pictureFolder);
    if (screen().savePicture(picture)) {
        std::printf("the screen: %s\n", qPrintable(picture));
    }
    std::printf("%s", qPrintable(m_application->describe()));
    std::printf("the gallery's own messages: %s\n", m_gallery->readAllStandardError().constData());
}

void GallerySession::openGallery(const QString& page)
{
    m_gallery = std::make_unique<DesktopProcess>();
    QProcessEnvironment environment = m_desktop.environment();
    environment.insert(QStringLiteral("HOME"), m_folder.path());
    // The leak checker would report memory of X11 libraries that are unloaded. The tour looks for real leaks.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    m_gallery->setProcessEnvironment(environment);
    require(
        m_gallery->run(galleryProgram, {QStringLiteral("--page"), page}), QStringLiteral("the gallery won't start"));
    m_application = m_desktop.application(QStringLiteral("morvane-gallery"));
    require(m_application.has_value(), QStringLiteral("the gallery is not on the accessibility bus"));
    waitForWindow(galleryTitle);
}

void GallerySession::closeGallery()
{
    waitForWindow(galleryTitle);
    screen().closeActiveWindow();
    require(eventually([this] { return m_gallery->state() == QProcess::NotRunning; }),
        QStringLiteral("the gallery stays open"));
    EXPECT_EQ(m_gallery->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_gallery->exitCode(), 0) << m_gallery->readAllStandardError().toStdString();
    m_application.reset();
}

Accessible GallerySession::part(const QString& role, const QString& name)
{
    return partOf(*m_application, role, name);
}

Accessible GallerySession::partOf(const Accessible& whole, const QString& role, const QString& name)
{
    std::optional<Accessible> found;
    eventually([&] {
        found = whole.find(role, name);
        return found && !found->rectangle().isEmpty();
    });
    require(found.has_value(), QStringLiteral("there is no %1 \"%2\"").arg(role, name));
    return *found;
}

Accessible GallerySession::itemOf(const Accessible& whole, const QString& name)
{
    std::optional<Accessible> found;
    QStringList names;
    eventually([&] {
        names.clear();
        for (const Accessible& child : whole.children()) {
            names.append(child.name());
            if (child.name() == name && child.isShowing()) {
                found = child;
            }
        }
        return found && !found->rectangle().isEmpty();
    });
    require(found.has_value(), QStringLiteral("no item \"%1\" among: %2").arg(name, names.join(QStringLiteral(", "))));
    return *found;
}

void GallerySession::waitForOrder(const Accessible& whole, const QStringList& names)
{
    QStringList found;
    const bool inOrder = eventually([&] {
        found.clear();
        for (const Accessible& child : whole.children()) {
            const QString name = child.name();
            if (names.contains(name)) {
                found.append(name);
            }
        }
        return found == names;
    });
    require(inOrder, QStringLiteral("not in order: %1").arg(found.join(QStringLiteral(", "))));
}

void GallerySession::click(const Accessible& target)
{
    screen().click(target.rectangle().center());
}

void GallerySession::clickInto(const Accessible& field)
{
    if (!field.isFocused()) {
        click(field);
        waitForFocus(field);
    }
}

void GallerySession::type(const Accessible& field, const QString& text)
{
    waitForFocus(field);
    screen().press({Key::Control}, 'a');
    screen().type(text);
    waitForText(field, text);
}

void GallerySession::waitForText(const Accessible& field, const QString& text)
{
    require(eventually([&] { return field.text() == text; }),
        QStringLiteral("not \"%1\" but \"%2\" in the field").arg(text, field.text()));
}

void GallerySession::waitForWindow(const QString& title)
{
    require(eventually([&] { return screen().activeTitle().startsWith(title); }),
        QStringLiteral("no window \"%1\"; active is \"%2\"").arg(title, screen().activeTitle()));
}

void GallerySession::waitForFocus(const Accessible& target)
{
    require(eventually([&] { return target.isFocused(); }),
        QStringLiteral("%1 \"%2\" does not get the focus").arg(target.role(), target.name()));
}

void GallerySession::waitForEnd(const Accessible& target)
{
    require(eventually([&] { return !target.isShowing(); }), QStringLiteral("it is still there"));
}

QRect GallerySession::waitForPopup()
{
    require(eventually([this] { return !screen().popup().isEmpty(); }), QStringLiteral("nothing pops up"));
    return screen().popup();
}

QString GallerySession::waitForReport(const QString& text)
{
    const Accessible log = part(QStringLiteral("text"), QStringLiteral("What the library reported"));
    require(eventually([&] { return log.text().contains(text); }),
        QStringLiteral("not reported: \"%1\", but\n%2").arg(text, log.text()));
    return log.text().section(text, 1, 1).section(QLatin1Char('\n'), 0, 0);
}

void GallerySession::expectOnClipboard(const QByteArray& text)
{
    QByteArray read;
    eventually([&] {
        read = clipboardText();
        return read == text;
    });
    EXPECT_EQ(read, text);
}

QByteArray GallerySession::clipboardText()
{
    const auto reader = m_desktop.launch(
        QStringLiteral("xclip"), {QStringLiteral("-out"), QStringLiteral("-selection"), QStringLiteral("clipboard"),
                                     QStringLiteral("-target"), QStringLiteral("UTF8_STRING")});
    return reader && reader->waitForFinished(timeLimitMs) ? reader->readAllStandardOutput() : QByteArray();
}

void GallerySession::makeFile(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray GallerySession::contentOf(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace morvane::test
