// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/QtSignalConnectionCollection.h"
#include "support/MessageLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QMetaMethod>

#include <memory>
#include <type_traits>

namespace {

using morvane::ui::QtSignalConnectionCollection;
using ::testing::ElementsAre;

static_assert(!std::is_copy_constructible_v<QtSignalConnectionCollection>);
static_assert(!std::is_copy_assignable_v<QtSignalConnectionCollection>);

/** An action that adds an entry to a list when one of its connections is disconnected. */
class NotingAction : public QAction
{
public:
    NotingAction(int number, std::vector<int>& list) : QAction(nullptr), m_number(number), m_list(list) {}

protected:
    void disconnectNotify(const QMetaMethod& signal) override
    {
        if (signal == QMetaMethod::fromSignal(&QAction::triggered)) {
            m_list.push_back(m_number);
        }
    }

private:
    int m_number;
    std::vector<int>& m_list;
};

class QtSignalConnectionCollectionTest : public ::testing::Test
{
protected:
    QMetaObject::Connection countTriggers(QAction& sender)
    {
        return QObject::connect(&sender, &QAction::triggered, [this] { ++count; });
    }

    std::unique_ptr<QtSignalConnectionCollection> collection = std::make_unique<QtSignalConnectionCollection>();
    QAction action;
    int count = 0;
};

TEST_F(QtSignalConnectionCollectionTest, keepsConnectionsUntilItEnds)
{
    collection->add(countTriggers(action));
    collection->add(countTriggers(action));
    action.trigger();
    EXPECT_EQ(count, 2);
    collection.reset();
    action.trigger();
    EXPECT_EQ(count, 2);
}

TEST_F(QtSignalConnectionCollectionTest, cutsInTheOrderOfAdding)
{
    std::vector<int> cut;
    NotingAction first(1, cut);
    NotingAction second(2, cut);
    NotingAction third(3, cut);
    collection->add(countTriggers(second));
    collection->add(countTriggers(third));
    collection->add(countTriggers(first));
    collection.reset();
    EXPECT_THAT(cut, ElementsAre(2, 3, 1));
}

TEST_F(QtSignalConnectionCollectionTest, leavesOtherConnectionsAlone)
{
    countTriggers(action);
    collection->add(countTriggers(action));
    collection.reset();
    action.trigger();
    EXPECT_EQ(count, 1);
}

TEST_F(QtSignalConnectionCollectionTest, passesOverSendersAndReceiversThatAreGone)
{
    const morvane::test::MessageLog log;
    auto sender = std::make_unique<QAction>();
    auto receiver = std::make_unique<QObject>();
    collection->add(countTriggers(*sender));
    collection->add(QObject::connect(&action, &QAction::triggered, receiver.get(), [this] { ++count; }));
    collection->add(countTriggers(action));
    sender.reset();
    receiver.reset();
    collection.reset();
    action.trigger();
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(log.entries().empty());
}

TEST_F(QtSignalConnectionCollectionTest, passesOverConnectionsThatWereCutBefore)
{
    const QMetaObject::Connection connection = countTriggers(action);
    collection->add(connection);
    QObject::disconnect(connection);
    collection.reset();
    EXPECT_FALSE(connection);
}

TEST_F(QtSignalConnectionCollectionTest, takesTheSameConnectionTwice)
{
    std::vector<int> cut;
    NotingAction noting(1, cut);
    const QMetaObject::Connection connection = countTriggers(noting);
    collection->add(connection);
    collection->add(connection);
    collection.reset();
    EXPECT_THAT(cut, ElementsAre(1));
}

TEST_F(QtSignalConnectionCollectionTest, takesConnectionsThatNeverWere)
{
    const morvane::test::MessageLog log;
    collection->add(QMetaObject::Connection());
    collection->add(countTriggers(action));
    collection.reset();
    action.trigger();
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(log.entries().empty());
}

TEST_F(QtSignalConnectionCollectionTest, mayEndInsideASlotOfItsOwn)
{
    collection->add(QObject::connect(&action, &QAction::triggered, [this] { collection.reset(); }));
    collection->add(countTriggers(action));
    action.trigger();
    EXPECT_EQ(count, 0);
}

TEST_F(QtSignalConnectionCollectionTest, cutsAHundredThousandConnections)
{
    for (int i = 0; i < 100000; ++i) {
        collection->add(countTriggers(action));
    }
    action.trigger();
    EXPECT_EQ(count, 100000);
    collection.reset();
    action.trigger();
    EXPECT_EQ(count, 100000);
}

TEST_F(QtSignalConnectionCollectionTest, mayStayEmpty)
{
    collection.reset();
}

} // namespace
