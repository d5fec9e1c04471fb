// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"

#include <QMetaObject>

using namespace morvane::test;

namespace {

const char* const defaultKey = "QExtendedFileDialog/Geometry_v2";

class QExtendedFileDialogGeometry : public FileDialogTest
{
protected:
    using Keys = std::vector<std::string>;

    static QByteArray geometryOf(const QRect& rectangle)
    {
        QWidget widget;
        widget.setGeometry(rectangle);
        return widget.saveGeometry();
    }

    static QRect geometryWhileOpen(QExtendedFileDialog& dialog)
    {
        QRect rectangle;
        run(dialog, [&](FileDialogDriver& driver) { rectangle = driver.dialog().geometry(); });
        return rectangle;
    }

    QSize ownSize()
    {
        QExtendedFileDialog plain(*m_parent, QFileDialog::AcceptOpen);
        plain.setGeometryPersistenceKey("nothing is stored here");
        return geometryWhileOpen(plain).size();
    }
};

} // namespace

TEST_F(QExtendedFileDialogGeometry, execUsesTheDefaultKey)
{
    const Dialog dialog = openDialog();
    run(*dialog, [](FileDialogDriver&) {});

    EXPECT_EQ(m_settings.written(), Keys({defaultKey}));
    for (const std::string& key : m_settings.keys(RecordingSettings::Kind::read)) {
        EXPECT_EQ(key, defaultKey);
    }
}

TEST_F(QExtendedFileDialogGeometry, shortFormUsesTheEmptyKey)
{
    QExtendedFileDialog dialog(*m_parent, QFileDialog::AcceptSave);
    m_settings.values[""] = geometryOf({40, 50, 690, 540});

    EXPECT_EQ(geometryWhileOpen(dialog), QRect(40, 50, 690, 540));
    EXPECT_EQ(m_settings.written(), Keys({""}));
}

TEST_F(QExtendedFileDialogGeometry, shortFormTakesAKeyToo)
{
    QExtendedFileDialog dialog(*m_parent, QFileDialog::AcceptOpen);
    dialog.setGeometryPersistenceKey("Import");
    run(dialog, [](FileDialogDriver&) {});

    EXPECT_EQ(m_settings.written(), Keys({"Import"}));
}

TEST_F(QExtendedFileDialogGeometry, anyKeyIsUsedAsItStands)
{
    const Keys keys = {"", "a/b//c", " = [x]\n", "Gr\u00f6\u00dfe \U0001F600", std::string("a\0b", 3), "\xFF", "%41"};
    for (const std::string& key : keys) {
        SCOPED_TRACE(key);
        m_settings.calls.clear();
        m_settings.values = {{key, geometryOf({40, 50, 690, 540})}};
        const Dialog dialog = openDialog();
        dialog->setGeometryPersistenceKey(key);

        EXPECT_EQ(geometryWhileOpen(*dialog), QRect(40, 50, 690, 540));
        EXPECT_EQ(m_settings.written(), Keys({key}));
    }
}

TEST_F(QExtendedFileDialogGeometry, keyCanChangeBetweenRuns)
{
    const Dialog dialog = openDialog();
    run(*dialog, [](FileDialogDriver&) {});
    dialog->setGeometryPersistenceKey("second");
    run(*dialog, [](FileDialogDriver&) {});

    EXPECT_EQ(m_settings.written(), Keys({defaultKey, "second"}));
}

TEST_F(QExtendedFileDialogGeometry, execReadsFirstAndWritesWhenItIsOver)
{
    const Dialog dialog = openDialog();
    std::vector<bool> visibleAtRead;
    bool visibleAtWrite = true;
    m_settings.onCall = [&](RecordingSettings::Kind kind) {
        if (kind == RecordingSettings::Kind::read) {
            visibleAtRead.push_back(dialog->isVisible());
        } else {
            visibleAtWrite = dialog->isVisible();
        }
    };

    run(*dialog, [&](FileDialogDriver&) { EXPECT_TRUE(m_settings.written().empty()); });

    ASSERT_FALSE(visibleAtRead.empty());
    for (const bool visible : visibleAtRead) {
        EXPECT_FALSE(visible);
    }
    EXPECT_FALSE(visibleAtWrite);
    EXPECT_EQ(m_settings.calls.back().kind, RecordingSettings::Kind::write);
}

TEST_F(QExtendedFileDialogGeometry, geometryIsKeptHoweverTheDialogEnds)
{
    makeFile(QStringLiteral("a.dat"));
    const Dialog dialog = openDialog();

    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.click(QDialogButtonBox::Cancel); }), QDialog::Rejected);
    EXPECT_EQ(m_settings.written().size(), 1U);
    EXPECT_EQ(
        run(*dialog, [](FileDialogDriver& driver) { driver.enterName(QStringLiteral("a.dat")); }), QDialog::Accepted);
    EXPECT_EQ(m_settings.written().size(), 2U);
}

TEST_F(QExtendedFileDialogGeometry, storedBytesAreTheWidgetsGeometry)
{
    const Dialog dialog = openDialog();
    run(*dialog, [](FileDialogDriver& driver) { driver.dialog().setGeometry(30, 40, 700, 520); });

    const QByteArray stored = m_settings.values[defaultKey];
    EXPECT_EQ(stored, dialog->saveGeometry());
    QWidget other;
    EXPECT_TRUE(other.restoreGeometry(stored));
    EXPECT_EQ(other.geometry(), QRect(30, 40, 700, 520));
}

TEST_F(QExtendedFileDialogGeometry, nextDialogOpensWhereTheLastOneStood)
{
    const Dialog first = openDialog();
    run(*first, [](FileDialogDriver& driver) { driver.dialog().setGeometry(30, 40, 700, 520); });

    const Dialog second = openDialog();
    EXPECT_EQ(geometryWhileOpen(*second), QRect(30, 40, 700, 520));
}

TEST_F(QExtendedFileDialogGeometry, survivesInARealSettingsFile)
{
    morvane::ApplicationSettings settings(path(QStringLiteral("settings.ini")));
    const morvane::InstanceOverride<morvane::ApplicationSettings> guard(settings);
    QExtendedFileDialog first(*m_parent, QFileDialog::AcceptOpen);
    run(first, [](FileDialogDriver& driver) { driver.dialog().setGeometry(30, 40, 700, 520); });

    morvane::ApplicationSettings again(path(QStringLiteral("settings.ini")));
    const morvane::InstanceOverride<morvane::ApplicationSettings> guardAgain(again);
    QExtendedFileDialog second(*m_parent, QFileDialog::AcceptOpen);
    EXPECT_EQ(geometryWhileOpen(second), QRect(30, 40, 700, 520));
}

TEST_F(QExtendedFileDialogGeometry, showReadsThenShowsAndStoresAtOnce)
{
    const Dialog dialog = openDialog();
    m_settings.values[defaultKey] = geometryOf({40, 50, 690, 540});
    std::vector<bool> visibleAtWrite;
    m_settings.onCall = [&](RecordingSettings::Kind kind) {
        if (kind == RecordingSettings::Kind::write) {
            visibleAtWrite.push_back(dialog->isVisible());
        } else {
            EXPECT_FALSE(dialog->isVisible());
        }
    };

    dialog->show();

    EXPECT_EQ(visibleAtWrite, std::vector<bool>({true}));
    EXPECT_EQ(dialog->geometry(), QRect(40, 50, 690, 540));
    EXPECT_EQ(m_settings.values[defaultKey], dialog->saveGeometry());
    EXPECT_TRUE(overrideCursors().empty());
    dialog->close();
    EXPECT_EQ(m_settings.written().size(), 1U);
}

TEST_F(QExtendedFileDialogGeometry, showUsesTheDefaultSizeToo)
{
    const Dialog dialog = openDialog();
    dialog->setDefaultSize(QSize(711, 533));

    dialog->show();

    EXPECT_EQ(dialog->size(), QSize(711, 533));
    EXPECT_EQ(m_settings.written(), Keys({defaultKey}));
}

TEST_F(QExtendedFileDialogGeometry, showIsReachedThroughTheMetaObject)
{
    const Dialog dialog = openDialog();

    EXPECT_TRUE(QMetaObject::invokeMethod(dialog.get(), "show"));

    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(m_settings.written().size(), 1U);
}

TEST_F(QExtendedFileDialogGeometry, showOfTheBaseClassStoresNothing)
{
    const Dialog dialog = openDialog();

    static_cast<QWidget&>(*dialog).show();

    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(m_settings.calls.empty());
}

TEST_F(QExtendedFileDialogGeometry, defaultSizeHoldsWhileNothingIsStored)
{
    const Dialog dialog = openDialog();
    dialog->setDefaultSize(QSize(711, 533));

    EXPECT_EQ(geometryWhileOpen(*dialog).size(), QSize(711, 533));
}

TEST_F(QExtendedFileDialogGeometry, storedGeometryWinsOverTheDefaultSize)
{
    m_settings.values[defaultKey] = geometryOf({40, 50, 690, 540});
    const Dialog dialog = openDialog();
    dialog->setDefaultSize(QSize(711, 533));

    EXPECT_EQ(geometryWhileOpen(*dialog), QRect(40, 50, 690, 540));
}

TEST_F(QExtendedFileDialogGeometry, defaultSizeNeedsBothSides)
{
    const QSize own = ownSize();
    for (const QSize size : {QSize(0, 500), QSize(711, 0), QSize(-1, -1), QSize(-5, 600), QSize(711, -1), QSize()}) {
        SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height());
        m_settings.values.clear();
        const Dialog dialog = openDialog();
        dialog->setDefaultSize(size);

        EXPECT_EQ(geometryWhileOpen(*dialog).size(), own);
    }
}

TEST_F(QExtendedFileDialogGeometry, oneByOneIsADefaultSize)
{
    const QSize own = ownSize();
    const Dialog dialog = openDialog();
    dialog->setDefaultSize(QSize(1, 1));

    const QSize size = geometryWhileOpen(*dialog).size();

    EXPECT_EQ(size, dialog->minimumSizeHint());
    EXPECT_NE(size, own);
}

TEST_F(QExtendedFileDialogGeometry, bytesThatAreNoGeometryAreIgnored)
{
    const QSize own = ownSize();
    const QByteArray whole = geometryOf({40, 50, 690, 540});
    const std::vector<QByteArray> others = {
        "not a geometry", QByteArray(1, '\0'), whole.mid(1), whole.left(3), QByteArray(100000, '\xFF')};
    for (const QByteArray& bytes : others) {
        SCOPED_TRACE(bytes.left(20).toHex().toStdString());
        m_settings.values = {{defaultKey, bytes}};
        const Dialog dialog = openDialog();
        dialog->setDefaultSize(QSize(711, 533));

        EXPECT_EQ(geometryWhileOpen(*dialog).size(), own);
        EXPECT_EQ(m_settings.values[defaultKey], dialog->saveGeometry());
    }
}

TEST_F(QExtendedFileDialogGeometry, cutGeometryStillGivesAUsableDialog)
{
    const QByteArray whole = geometryOf({40, 50, 690, 540});
    for (int length = 4; length < whole.size(); length += 4) {
        SCOPED_TRACE(length);
        m_settings.values = {{defaultKey, whole.left(length)}};
        const Dialog dialog = openDialog();

        const QSize size = geometryWhileOpen(*dialog).size();

        EXPECT_EQ(size, size.expandedTo(dialog->minimumSizeHint()));
        EXPECT_EQ(m_settings.values[defaultKey], dialog->saveGeometry());
    }
}
