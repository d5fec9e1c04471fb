// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/controls/ComboBoxForm.h"

#include <QMetaProperty>
#include <QPainter>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStyledItemDelegate>

namespace {

using morvane::test::pressKey;
using morvane::test::type;
using morvane::ui::ComboBoxAutoFilter;

class ComboBoxWordsTest : public morvane::test::ComboBoxForm
{
protected:
    QStringList offered() const
    {
        QStringList texts;
        const QAbstractItemModel& model = *box->completer()->completionModel();
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.append(model.index(row, 0).data().toString());
        }
        return texts;
    }

    /** Types over what is in the line. */
    void enter(const QString& text)
    {
        if (!QApplication::activePopupWidget()) {
            activate();
        }
        box->lineEdit()->selectAll();
        type(text);
    }

    QAbstractItemView& popup() const { return *box->completer()->popup(); }
    QString chosen() const { return box->itemText(box->currentIndex()); }

    void useForm()
    {
        box->setEditMode(ComboBoxAutoFilter::FormField);
        box->setMatchingWords(true);
        setUp({"bearing pressure", "bearing temperature", "inlet pressure", "pressure", "Délai"});
    }
};

TEST_F(ComboBoxWordsTest, isOffInitially)
{
    EXPECT_FALSE(box->isMatchingWords());
    EXPECT_FALSE(box->isIgnoringAccents());
    EXPECT_FALSE(box->isMatchShown());
    setUp({"bearing pressure", "Délai"});
    enter("pressure bearing");
    EXPECT_TRUE(offered().isEmpty());
    enter("delai");
    EXPECT_TRUE(offered().isEmpty());
}

TEST_F(ComboBoxWordsTest, typedWordsAreOfferedInAnyOrder)
{
    useForm();
    enter("pre");
    EXPECT_EQ(offered(), QStringList({"bearing pressure", "inlet pressure", "pressure"}));
    type("ss be");
    EXPECT_EQ(offered(), QStringList({"bearing pressure"}));
    EXPECT_TRUE(popup().isVisible());
    pressKey(Qt::Key_Backspace);
    pressKey(Qt::Key_Backspace);
    EXPECT_EQ(offered(), QStringList({"bearing pressure", "inlet pressure", "pressure"}));
    type("xyz");
    EXPECT_TRUE(offered().isEmpty());
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(ComboBoxWordsTest, returnChoosesTheFirstEntryWithAllWords)
{
    useForm();
    enter("press be");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "bearing pressure");
    EXPECT_EQ(box->lineEdit()->text(), "bearing pressure");
    EXPECT_EQ(complete.count(), 1);
}

TEST_F(ComboBoxWordsTest, anEqualEntryComesFirstInAFormField)
{
    useForm();
    enter("pressure ");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "pressure");
}

TEST_F(ComboBoxWordsTest, blanksAloneAreNoText)
{
    useForm();
    box->setCurrentIndex(2);
    enter("  ");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "inlet pressure");
    EXPECT_EQ(cancel.count(), 1);
}

TEST_F(ComboBoxWordsTest, arrowsAndClicksPickAmongTheSuggestions)
{
    useForm();
    enter("pressure in");
    EXPECT_EQ(offered(), QStringList({"bearing pressure", "inlet pressure"}));
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "inlet pressure");
    activate();
    enter("e bear");
    ASSERT_TRUE(popup().isVisible());
    const QModelIndex second = popup().model()->index(1, 0);
    QTest::mouseClick(popup().viewport(), Qt::LeftButton, Qt::NoModifier, popup().visualRect(second).center());
    EXPECT_EQ(chosen(), "bearing temperature");
    EXPECT_EQ(complete.count(), 2);
}

TEST_F(ComboBoxWordsTest, escapeBringsTheEntryBack)
{
    useForm();
    box->setCurrentIndex(3);
    enter("in be");
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(chosen(), "pressure");
    EXPECT_EQ(box->lineEdit()->text(), "pressure");
}

TEST_F(ComboBoxWordsTest, accentsAreIgnoredOnRequest)
{
    useForm();
    box->setIgnoringAccents(true);
    enter("delai");
    EXPECT_EQ(offered(), QStringList({"Délai"}));
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "Délai");
    box->setMatchingWords(false);
    enter("ela");
    EXPECT_EQ(offered(), QStringList({"Délai"}));
}

TEST_F(ComboBoxWordsTest, aSingleEditTakesTheFirstEntryWithAllWords)
{
    box->setMatchingWords(true);
    setUp({"Scar", "bar car", "Car"});
    enter("car b");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "bar car");
    EXPECT_FALSE(box->isVisible());
}

TEST_F(ComboBoxWordsTest, caseSensitiveSuggestionsStaySo)
{
    box->setMatchingWords(true);
    setUp({"Bar Car", "bar car"}, Qt::CaseSensitive);
    enter("c b");
    EXPECT_EQ(offered(), QStringList({"bar car"}));
}

TEST_F(ComboBoxWordsTest, otherModelsAndColumnsAreFollowed)
{
    useForm();
    QStringListModel other(QStringList{"new pump", "new valve"});
    box->setModel(&other);
    enter("pump n");
    EXPECT_EQ(offered(), QStringList({"new pump"}));
    other.setStringList({"nice pump", "no pump"});
    enter("pump n");
    EXPECT_EQ(offered(), QStringList({"nice pump", "no pump"}));
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(chosen(), "no pump");
    box->setModel(new QStringListModel(box));
}

TEST_F(ComboBoxWordsTest, canBeSwitchedWhileTheFieldIsInUse)
{
    useForm();
    enter("be pr");
    EXPECT_EQ(offered().size(), 1);
    box->setMatchingWords(false);
    EXPECT_TRUE(offered().isEmpty());
    box->setMatchingWords(true);
    EXPECT_EQ(offered().size(), 1);
    box->setFiltering(false);
    box->setFiltering(true);
    box->setFocus();
    enter("te be");
    EXPECT_EQ(offered(), QStringList({"bearing temperature"}));
}

TEST_F(ComboBoxWordsTest, unfilteredSuggestionsStayUnfiltered)
{
    box->setMatchingWords(true);
    setUp({"Bar", "Car"}, Qt::CaseInsensitive, QCompleter::UnfilteredPopupCompletion);
    enter("c");
    EXPECT_EQ(offered(), QStringList({"Bar", "Car"}));
}

TEST_F(ComboBoxWordsTest, thePropertiesAreForDesigner)
{
    for (const char* const name : {"matchingWords", "ignoringAccents", "matchShown"}) {
        const QMetaProperty property = box->metaObject()->property(box->metaObject()->indexOfProperty(name));
        EXPECT_TRUE(property.isWritable() && property.isDesignable() && property.isStored()) << name;
        EXPECT_TRUE(box->setProperty(name, true));
        EXPECT_TRUE(box->property(name).toBool()) << name;
    }
}

/** The picture of one suggestion, without the mark and the mouse. */
class ComboBoxMatchTest : public ComboBoxWordsTest
{
protected:
    QImage picture(int row)
    {
        const QModelIndex index = popup().model()->index(row, 0);
        QStyleOptionViewItem option;
        option.initFrom(&popup());
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        option.rect = QRect(0, 0, 300, 24);
        option.font = popup().font();
        option.textElideMode = popup().textElideMode();
        option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        // Qt's own delegate paints the current suggestion as selected, whatever the option says.
        const QModelIndex current = popup().currentIndex();
        const QSignalBlocker blocker(popup().selectionModel());
        popup().setCurrentIndex(QModelIndex());
        QPainter painter(&image);
        popup().itemDelegate()->paint(&painter, option, index);
        popup().setCurrentIndex(current);
        return image;
    }

    static int ink(const QImage& image)
    {
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                dark += 255 - qGray(image.pixel(x, y));
            }
        }
        return dark;
    }
};

TEST_F(ComboBoxMatchTest, theMatchIsBoldAndOnlyTheMatch)
{
    useForm();
    box->setMatchShown(true);
    enter("pressure");
    const int one = ink(picture(2)); // "pressure": all of it
    type(" be");
    const int two = ink(picture(0)); // "bearing pressure": "be" and "pressure"
    box->setMatchShown(false);
    const int twoPlain = ink(picture(0));
    enter("pressure");
    const int onePlain = ink(picture(2));
    EXPECT_GT(one, onePlain * 11 / 10);
    EXPECT_GT(two, twoPlain * 21 / 20);
    EXPECT_LT(two - twoPlain, 2 * (one - onePlain));
}

TEST_F(ComboBoxMatchTest, withNoMatchItLooksAsBefore)
{
    useForm();
    enter("e");
    ASSERT_TRUE(popup().isVisible());
    const int plain = ink(picture(1)); // not the marked one
    box->setMatchShown(true);
    box->completer()->setCompletionPrefix("");
    EXPECT_NEAR(ink(picture(1)), plain, plain / 20);
}

TEST_F(ComboBoxMatchTest, longEntriesAreElidedWhereverTheMatchIs)
{
    const QString longEntry = QString("start ").repeated(20) + "needle " + QString("end ").repeated(20);
    box->setMatchShown(true);
    for (const Qt::TextElideMode elide : {Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight, Qt::ElideNone}) {
        box->clear();
        box->setList({longEntry});
        box->setCompleterAttributes(true, QCompleter::PopupCompletion, Qt::CaseInsensitive, elide, Qt::MatchContains);
        for (const char* const text : {"start", "needle", "end", "e"}) {
            box->completer()->setCompletionPrefix(text);
            ASSERT_EQ(box->completer()->completionCount(), 1);
            const QImage image = picture(0);
            EXPECT_GT(ink(image), 10000) << elide << text;
        }
    }
}

TEST_F(ComboBoxMatchTest, theDelegateStaysWithANewModelAndGoesWhenSwitchedOff)
{
    useForm();
    const QAbstractItemDelegate* const stock = popup().itemDelegate();
    box->setMatchShown(true);
    EXPECT_NE(popup().itemDelegate(), stock);
    QStringListModel other(QStringList{"new pump"});
    box->setModel(&other);
    enter("pump");
    const int bold = ink(picture(0));
    box->setMatchShown(false);
    EXPECT_LT(ink(picture(0)), bold);
    box->setModel(new QStringListModel(box));
}

} // namespace
