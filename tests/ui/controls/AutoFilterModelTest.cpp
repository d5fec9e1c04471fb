// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterModel_p.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>

#include <memory>
#include <random>

namespace {

using morvane::ui::AutoFilterModel;
using morvane::ui::EntryMatcher;

const AutoFilterModel::Search wordSearch{{true, false}, 0, Qt::EditRole, Qt::CaseInsensitive};

QStringList shown(const AutoFilterModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data().toString());
    }
    return texts;
}

/** Filters in the plainest way. */
QStringList expected(const QAbstractItemModel& entries, const QString& text)
{
    const EntryMatcher matcher(text, wordSearch.matching);
    QStringList texts;
    for (int row = 0; row < entries.rowCount(); ++row) {
        const QString entry = entries.index(row, 0).data().toString();
        if (matcher.isContainedIn(entry)) {
            texts.append(entry);
        }
    }
    return texts;
}

TEST(AutoFilterModelTest, withoutATextAllEntriesAreShown)
{
    QStringListModel entries(QStringList{"a", "b"});
    AutoFilterModel model;
    EXPECT_EQ(model.rowCount(), 0);
    model.filter("a", wordSearch);
    model.filter("", wordSearch);
    model.setSourceModel(&entries);
    EXPECT_EQ(shown(model), QStringList({"a", "b"}));
    EXPECT_EQ(model.columnCount(), 1);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    EXPECT_FALSE(model.parent(model.index(0, 0)).isValid());
}

TEST(AutoFilterModelTest, entriesAreMappedInBothDirections)
{
    QStringListModel entries(QStringList{"pump 1", "valve 1", "pump 2", "valve 2"});
    AutoFilterModel model;
    model.setSourceModel(&entries);
    model.filter("2", wordSearch);
    EXPECT_EQ(shown(model), QStringList({"pump 2", "valve 2"}));
    EXPECT_EQ(model.mapToSource(model.index(1, 0)).row(), 3);
    EXPECT_EQ(model.mapFromSource(entries.index(3, 0)), model.index(1, 0));
    EXPECT_FALSE(model.mapFromSource(entries.index(1, 0)).isValid());
    EXPECT_FALSE(model.mapToSource(QModelIndex()).isValid());
}

TEST(AutoFilterModelTest, changesOfTheEntriesAreFollowed)
{
    QStringListModel entries(QStringList{"pump 1", "pump 2"});
    AutoFilterModel model;
    model.setSourceModel(&entries);
    model.filter("2 pump", wordSearch);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    entries.insertRow(0);
    entries.setData(entries.index(0, 0), "pumps 22");
    EXPECT_EQ(shown(model), QStringList({"pumps 22", "pump 2"}));
    entries.sort(0, Qt::AscendingOrder);
    EXPECT_EQ(shown(model), QStringList({"pump 2", "pumps 22"}));
    entries.removeRow(1);
    EXPECT_EQ(shown(model), QStringList({"pumps 22"}));
    entries.setStringList({"x", "2nd pump"});
    EXPECT_EQ(shown(model), QStringList({"2nd pump"}));
    EXPECT_GE(resets.count(), 5);
}

TEST(AutoFilterModelTest, destroyedEntriesAreGone)
{
    auto entries = std::make_unique<QStringListModel>(QStringList{"a", "ab"});
    AutoFilterModel model;
    model.setSourceModel(entries.get());
    model.filter("a", wordSearch);
    entries.reset();
    EXPECT_EQ(model.rowCount(), 0);
    model.filter("ab", wordSearch);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(AutoFilterModelTest, whatCannotBeSelectedIsNotOffered)
{
    QStandardItemModel entries;
    for (const char* const text : {"a", "ab", "abc"}) {
        entries.appendRow(new QStandardItem(text));
    }
    entries.item(1)->setSelectable(false);
    AutoFilterModel model;
    model.setSourceModel(&entries);
    model.filter("a", wordSearch);
    EXPECT_EQ(shown(model), QStringList({"a", "abc"}));
}

TEST(AutoFilterModelTest, halfOfACharacterDoesNotHideTheWholeOne)
{
    const QString rocket = QString::fromUtf8("🚀");
    QStringListModel entries({rocket, "x"});
    AutoFilterModel model;
    model.setSourceModel(&entries);
    model.filter(rocket.left(1), wordSearch);
    model.filter(rocket, wordSearch);
    EXPECT_EQ(shown(model), QStringList({rocket}));
}

TEST(AutoFilterModelTest, randomEditsGiveWhatSearchingAllEntriesGives)
{
    std::mt19937 engine(29);
    const auto random = [&](int longest) {
        QString text;
        for (unsigned length = engine() % static_cast<unsigned>(longest + 1); length > 0; --length) {
            text += QLatin1Char("abc "[engine() % 4]);
        }
        return text;
    };
    QStringList texts;
    for (int i = 0; i < 300; ++i) {
        texts.append(random(8));
    }
    QStringListModel entries(texts);
    AutoFilterModel model;
    model.setSourceModel(&entries);
    QString text;
    for (int step = 0; step < 5000; ++step) {
        switch (engine() % 8) {
        case 0:
        case 1:
            text.chop(1);
            break;
        case 2:
            text.insert(static_cast<int>(engine() % static_cast<unsigned>(text.size() + 1)), random(1));
            break;
        case 3:
            entries.setData(entries.index(static_cast<int>(engine() % 300), 0), random(8));
            break;
        default:
            text += random(2);
        }
        text = text.left(14);
        model.filter(text, wordSearch);
        ASSERT_EQ(shown(model), expected(entries, text)) << text.toStdString() << " at step " << step;
    }
}

} // namespace
