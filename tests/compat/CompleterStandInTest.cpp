// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include <ctkCompleter.h>

#include <gtest/gtest.h>

#include <QMetaEnum>
#include <QPointer>
#include <QStandardItemModel>
#include <QStringListModel>

#include <memory>

using morvane::compat::ctkCompleter;

namespace {

QStringList offered(const ctkCompleter& completer)
{
    QStringList result;
    const QAbstractItemModel* const model = completer.completionModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        result.append(model->index(row, 0).data().toString());
    }
    return result;
}

QStringList offered(ctkCompleter& completer, ctkCompleter::ModelFiltering filtering, const QString& prefix)
{
    completer.setModelFiltering(filtering);
    completer.setCompletionPrefix(prefix);
    return offered(completer);
}

const QStringList places{"New York", "York", "Yorkshire", "north york", "Newyork", "Duke-of-York", "york_2", "x_york"};

} // namespace

TEST(CompleterStandIn, startsCaseSensitiveWithPopupAndPrefix)
{
    const ctkCompleter completer(places);
    EXPECT_EQ(completer.modelFiltering(), ctkCompleter::FilterStartsWith);
    EXPECT_EQ(completer.caseSensitivity(), Qt::CaseSensitive);
    EXPECT_EQ(completer.completionMode(), QCompleter::PopupCompletion);
    EXPECT_EQ(ctkCompleter().sourceModel(), nullptr);
}

TEST(CompleterStandIn, filtersByTheStartOfTheEntry)
{
    ctkCompleter completer(places);
    EXPECT_EQ(offered(completer, ctkCompleter::FilterStartsWith, "York"), QStringList({"York", "Yorkshire"}));
}

TEST(CompleterStandIn, filtersByTextAnywhere)
{
    ctkCompleter completer(places);
    EXPECT_EQ(offered(completer, ctkCompleter::FilterContains, "York"),
        QStringList({"New York", "York", "Yorkshire", "Duke-of-York"}));
}

TEST(CompleterStandIn, filtersByTheStartOfAWord)
{
    ctkCompleter completer(places);
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "York"),
        QStringList({"New York", "York", "Yorkshire", "Duke-of-York"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "york"), QStringList({"north york", "york_2"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "w Y"), QStringList());
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "-of"), QStringList());
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, ""), places);
}

TEST(CompleterStandIn, findsALaterWordWhenTheTextFirstStandsInsideOne)
{
    ctkCompleter completer(QStringList({"scarcar", "scar car", "aaab aab"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "car"), QStringList({"scar car"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "aab"), QStringList({"aaab aab"}));
}

TEST(CompleterStandIn, wordsReachBeyondAsciiAndTheBasicPlane)
{
    const QString letter = QString::fromUtf8("\xf0\x9d\x90\x80");  // a mathematical letter
    const QString picture = QString::fromUtf8("\xf0\x9f\x98\x80"); // a smiley
    const QString marked = QString::fromUtf8("e\xcc\x81");         // e and a combining accent
    ctkCompleter completer(QStringList({letter + "car", picture + "car", marked + "car", QString::fromUtf8("öcar")}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "car"), QStringList({picture + "car"}));
}

TEST(CompleterStandIn, wildcardCharactersAreText)
{
    ctkCompleter completer(QStringList({"a*b", "a?b", "a[b]", "axb", "a\\b", "a.b", "(a|b)", "^a$"}));
    for (const char* const text : {"*", "?", "[b]", "\\", ".", "(a|b)", "^a$"}) {
        for (const auto mode : {ctkCompleter::FilterContains, ctkCompleter::FilterWordStartsWith}) {
            const QStringList found = offered(completer, mode, mode == ctkCompleter::FilterContains ? text : "a");
            EXPECT_EQ(found.size(), mode == ctkCompleter::FilterContains ? 1 : 8) << text;
        }
    }
    EXPECT_EQ(offered(completer, ctkCompleter::FilterStartsWith, "a*"), QStringList({"a*b"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "a?"), QStringList({"a?b"}));
}

TEST(CompleterStandIn, changesOfCaseSensitivityShowAtOnce)
{
    for (const auto mode :
        {ctkCompleter::FilterStartsWith, ctkCompleter::FilterContains, ctkCompleter::FilterWordStartsWith}) {
        ctkCompleter completer(QStringList({"Car", "car", "Dog"}));
        EXPECT_EQ(offered(completer, mode, "car"), QStringList({"car"}));
        completer.setCaseSensitivity(Qt::CaseInsensitive);
        EXPECT_EQ(offered(completer), QStringList({"Car", "car"}));
        completer.setCaseSensitivity(Qt::CaseSensitive);
        EXPECT_EQ(offered(completer), QStringList({"car"}));
    }
}

TEST(CompleterStandIn, aWordThatOnlyFitsWithoutCaseIsNotFoundWithIt)
{
    ctkCompleter completer(QStringList({"baz xBa"}));
    EXPECT_EQ(offered(completer, ctkCompleter::FilterWordStartsWith, "Ba"), QStringList());
    completer.setCaseSensitivity(Qt::CaseInsensitive);
    EXPECT_EQ(offered(completer), QStringList({"baz xBa"}));
}

TEST(CompleterStandIn, changesOfTheModeShowAtOnce)
{
    ctkCompleter completer(QStringList({"Scar", "my Car", "Car"}));
    completer.setCompletionPrefix("Car");
    EXPECT_EQ(offered(completer), QStringList({"Car"}));
    completer.setModelFiltering(ctkCompleter::FilterWordStartsWith);
    EXPECT_EQ(offered(completer), QStringList({"my Car", "Car"}));
    completer.setCaseSensitivity(Qt::CaseInsensitive);
    completer.setModelFiltering(ctkCompleter::FilterContains);
    EXPECT_EQ(offered(completer).size(), 3);
    completer.setModelFiltering(ctkCompleter::FilterStartsWith);
    EXPECT_EQ(offered(completer), QStringList({"Car"}));
    completer.setProperty("modelFiltering", 1);
    EXPECT_EQ(completer.modelFiltering(), ctkCompleter::FilterContains);
}

class CompleterStandInRows : public ::testing::TestWithParam<ctkCompleter::ModelFiltering>
{
};

TEST_P(CompleterStandInRows, appendedRemovedChangedAndResetWhileFiltered)
{
    QStringListModel model({"Car", "Dog", "Carton"});
    ctkCompleter completer(&model);
    completer.popup();
    EXPECT_EQ(offered(completer, GetParam(), "Car"), QStringList({"Car", "Carton"}));

    model.insertRows(3, 1);
    model.setData(model.index(3), "Cart");
    EXPECT_EQ(offered(completer), QStringList({"Car", "Carton", "Cart"}));
    model.insertRows(0, 1);
    model.setData(model.index(0), "Carbon");
    EXPECT_EQ(offered(completer), QStringList({"Carbon", "Car", "Carton", "Cart"}));
    model.removeRows(1, 1);
    EXPECT_EQ(offered(completer), QStringList({"Carbon", "Carton", "Cart"}));
    model.setData(model.index(0), "Egg");
    EXPECT_EQ(offered(completer), QStringList({"Carton", "Cart"}));
    model.setStringList({"Dog", "Carp"});
    EXPECT_EQ(offered(completer), QStringList({"Carp"}));
    model.setStringList({});
    EXPECT_EQ(offered(completer), QStringList());
}

TEST_P(CompleterStandInRows, aNewSourceIsFilteredAtOnce)
{
    QStringListModel first({"Car"});
    QStringListModel second({"Carton", "Dog"});
    ctkCompleter completer(&first);
    EXPECT_EQ(offered(completer, GetParam(), "Car"), QStringList({"Car"}));
    EXPECT_EQ(completer.sourceModel(), &first);
    completer.setSourceModel(&second);
    EXPECT_EQ(completer.sourceModel(), &second);
    EXPECT_EQ(offered(completer), QStringList({"Carton"}));
    completer.setSourceModel(nullptr);
    EXPECT_EQ(completer.sourceModel(), nullptr);
    EXPECT_EQ(offered(completer), QStringList());
}

TEST_P(CompleterStandInRows, itsOwnModelLivesAsLongAsItIsTheSource)
{
    auto completer = std::make_unique<ctkCompleter>(QStringList({"Car"}));
    const QPointer<QAbstractItemModel> first = completer->sourceModel();
    completer->setModelFiltering(GetParam());
    ASSERT_TRUE(first);
    EXPECT_EQ(completer->sourceModel(), first);
    const QPointer<QAbstractItemModel> second = new QStringListModel(QStringList({"Carton"}), completer.get());
    completer->setSourceModel(second);
    EXPECT_FALSE(first);
    completer->setCompletionPrefix("Car");
    EXPECT_EQ(offered(*completer), QStringList({"Carton"}));
    completer.reset();
    EXPECT_FALSE(second);
}

TEST_P(CompleterStandInRows, aForeignModelOutlivesItOrDiesFirst)
{
    auto model = std::make_unique<QStringListModel>(QStringList({"Car"}));
    {
        ctkCompleter completer(model.get());
        completer.setModelFiltering(GetParam());
    }
    ctkCompleter completer(model.get());
    EXPECT_EQ(offered(completer, GetParam(), "Car"), QStringList({"Car"}));
    model.reset();
    EXPECT_EQ(offered(completer), QStringList());
    completer.setCompletionPrefix("C");
    EXPECT_EQ(offered(completer), QStringList());
}

TEST_P(CompleterStandInRows, readsTheColumnAndRoleItIsTold)
{
    QStandardItemModel model(2, 2);
    model.setItem(0, 1, new QStandardItem("shown"));
    model.item(0, 1)->setData("Carton", Qt::UserRole);
    model.setItem(1, 1, new QStandardItem("Carton"));
    ctkCompleter completer(&model);
    completer.setCompletionColumn(1);
    completer.setCompletionRole(Qt::UserRole);
    completer.setModelFiltering(GetParam());
    completer.setCompletionPrefix("Car");
    ASSERT_EQ(completer.completionCount(), 1);
    EXPECT_EQ(completer.currentIndex().data().toString(), "shown");
}

TEST_P(CompleterStandInRows, aHundredThousandRows)
{
    QStringList names;
    for (int number = 0; number < 100000; ++number) {
        names.append(QString("bearing %1").arg(number));
    }
    ctkCompleter completer(names);
    EXPECT_EQ(offered(completer, GetParam(), "bearing 9999").size(), 11);
    completer.setCompletionPrefix("");
    EXPECT_EQ(completer.completionCount(), 100000);
}

INSTANTIATE_TEST_SUITE_P(Mode, CompleterStandInRows,
    ::testing::Values(ctkCompleter::FilterStartsWith, ctkCompleter::FilterContains, ctkCompleter::FilterWordStartsWith),
    [](const auto& mode) {
        return std::string(QMetaEnum::fromType<ctkCompleter::ModelFiltering>().valueToKey(mode.param));
    });
