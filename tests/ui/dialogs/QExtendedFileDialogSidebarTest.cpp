// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "FileDialogTest.h"
#include "support/MessageLog.h"

#include <boost/filesystem/exception.hpp>

#include <QListView>
#include <QStandardPaths>

#include <stdexcept>

using namespace morvane::test;

namespace {

class QExtendedFileDialogSidebar : public FileDialogTest
{
protected:
    QExtendedFileDialogSidebar() { makeFolder(QStringLiteral("place")); }

    QUrl place() const { return QUrl::fromLocalFile(path(QStringLiteral("place"))); }

    static QList<QUrl> defaultPlaces()
    {
        QList<QUrl> urls;
        for (const auto location :
            {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation}) {
            urls.append(QUrl::fromLocalFile(QStandardPaths::standardLocations(location).first()));
        }
        return urls;
    }

    // Fails while the sidebar still shows its earlier entries.
    template <typename Error>
    static QMetaObject::Connection failOnChange(const QExtendedFileDialog& dialog, const Error& error)
    {
        const auto* const sidebar = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
        return QObject::connect(
            sidebar->model(), &QAbstractItemModel::rowsAboutToBeRemoved, sidebar, [error] { throw error; });
    }

    static boost::filesystem::filesystem_error fileSystemError()
    {
        return {"no such drive", "/mnt/gone", make_error_code(boost::system::errc::no_such_device)};
    }
};

} // namespace

TEST_F(QExtendedFileDialogSidebar, privateHomeHasThreeDifferentPlaces)
{
    const QList<QUrl> places = defaultPlaces();

    EXPECT_NE(places[0], places[1]);
    EXPECT_NE(places[1], places[2]);
    EXPECT_NE(places[0], places[2]);
}

TEST_F(QExtendedFileDialogSidebar, firstExecAppendsDesktopDocumentsAndHome)
{
    const Dialog dialog = openDialog();
    dialog->setSidebarUrls({place()});

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().sidebarUrls(), QList<QUrl>({place()}) + defaultPlaces());
    });
}

TEST_F(QExtendedFileDialogSidebar, firstShowAppendsThemToo)
{
    const Dialog dialog = openDialog();
    dialog->setSidebarUrls({place()});

    dialog->show();

    EXPECT_EQ(dialog->sidebarUrls(), QList<QUrl>({place()}) + defaultPlaces());
}

TEST_F(QExtendedFileDialogSidebar, constructionLeavesItAlone)
{
    QFileDialog plain(m_parent.get());
    plain.setOption(QFileDialog::DontUseNativeDialog);
    const Dialog dialog = openDialog();

    EXPECT_EQ(dialog->sidebarUrls(), plain.sidebarUrls());
}

TEST_F(QExtendedFileDialogSidebar, storedGeometryLeavesItAlone)
{
    m_settings.values["QExtendedFileDialog/Geometry_v2"] = "x";
    const Dialog dialog = openDialog();
    dialog->setSidebarUrls({place()});

    run(*dialog, [&](FileDialogDriver& driver) { EXPECT_EQ(driver.dialog().sidebarUrls(), QList<QUrl>({place()})); });
    dialog->show();
    EXPECT_EQ(dialog->sidebarUrls(), QList<QUrl>({place()}));
}

TEST_F(QExtendedFileDialogSidebar, geometryUnderAnotherKeyDoesNotCount)
{
    m_settings.values["QExtendedFileDialog/Geometry_v2"] = "x";
    const Dialog dialog = openDialog();
    dialog->setGeometryPersistenceKey("other");
    dialog->setSidebarUrls({place()});

    run(*dialog, [&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.dialog().sidebarUrls(), QList<QUrl>({place()}) + defaultPlaces());
    });
}

TEST_F(QExtendedFileDialogSidebar, secondExecAddsNothing)
{
    const Dialog dialog = openDialog();
    run(*dialog, [](FileDialogDriver&) {});
    dialog->setSidebarUrls({place()});

    run(*dialog, [&](FileDialogDriver& driver) { EXPECT_EQ(driver.dialog().sidebarUrls(), QList<QUrl>({place()})); });
}

TEST_F(QExtendedFileDialogSidebar, placesThatWereThereAreListedOnce)
{
    const Dialog dialog = openDialog();
    const QList<QUrl> places = defaultPlaces();
    dialog->setSidebarUrls({places.last(), place()});

    run(*dialog, [&](FileDialogDriver& driver) {
        const QList<QUrl> urls = driver.dialog().sidebarUrls();
        EXPECT_EQ(urls.size(), 4);
        for (const QUrl& url : places) {
            EXPECT_EQ(urls.count(url), 1);
        }
    });
}

TEST_F(QExtendedFileDialogSidebar, fileSystemErrorIsLoggedAndTheDialogOpens)
{
    const Dialog dialog = openDialog();
    dialog->setSidebarUrls({place()});
    const boost::filesystem::filesystem_error error = fileSystemError();
    const QMetaObject::Connection connection = failOnChange(*dialog, error);
    const MessageLog log;

    const int result = run(*dialog, [&](FileDialogDriver& driver) {
        QObject::disconnect(connection);
        EXPECT_EQ(driver.dialog().sidebarUrls(), QList<QUrl>({place()}));
    });

    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_EQ(
        log.texts(QtDebugMsg), QStringList(QStringLiteral("Unable to add default storage locations to sidebar: ") +
                                           QString::fromLocal8Bit(error.what())));
    EXPECT_EQ(m_settings.written().size(), 1U);
}

TEST_F(QExtendedFileDialogSidebar, otherErrorsPassAndLeaveNothingBehind)
{
    const Dialog dialog = openDialog();
    dialog->setSidebarUrls({place()});
    const QMetaObject::Connection connection = failOnChange(*dialog, std::runtime_error("broken"));
    const MessageLog log;

    EXPECT_THROW(dialog->exec(), std::runtime_error);
    EXPECT_THROW(dialog->show(), std::runtime_error);

    QObject::disconnect(connection);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(log.texts(QtDebugMsg).isEmpty());
    EXPECT_TRUE(overrideCursors().empty());
    EXPECT_TRUE(m_settings.written().empty());
}
