// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Lists, edit boxes, texts and groups as a user meets them: order, labels, keys, names, large fonts, little room.
#include "WidgetShellRunTest.h"

#include "support/ActiveWindow.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellLists : public WidgetShellRun
{
protected:
    void addList(DWORD id, const char* label)
    {
        customize->StartVisualGroup(id, text(label).c_str());
        customize->AddComboBox(id + 1);
        customize->AddControlItem(id + 1, 1000, text("First").c_str());
        customize->AddControlItem(id + 1, 1001, text("Second").c_str());
        customize->EndVisualGroup();
    }
    void addGroup()
    {
        customize->StartVisualGroup(20, text("&Options").c_str());
        customize->AddText(21, text("Some & words").c_str());
        customize->AddText(22, text("&Comment:").c_str());
        customize->AddEditBox(23, text("none").c_str());
        customize->AddText(24, text("Unit:").c_str());
        customize->AddRadioButtonList(25);
        customize->AddControlItem(25, 1000, text("mm").c_str());
        customize->AddControlItem(25, 1001, text("m").c_str());
        customize->EndVisualGroup();
    }
    template <typename Widget>
    static Widget* find(QFileDialog& window, DWORD id)
    {
        auto* const found = window.findChild<Widget*>(QStringLiteral("customControl%1").arg(id));
        EXPECT_TRUE(found) << id;
        return found;
    }
    static QRect placeOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }
};

TEST_F(WidgetShellLists, screenReadersSpeakTheLabels)
{
    addList(1, "&Encoding:");
    addGroup();
    show([&](QFileDialog& window) {
        EXPECT_EQ(find<QComboBox>(window, 2)->accessibleName(), QStringLiteral("Encoding"));
        EXPECT_EQ(find<QLineEdit>(window, 23)->accessibleName(), QStringLiteral("Comment"));
        EXPECT_EQ(find<QGroupBox>(window, 25)->accessibleName(), QStringLiteral("Unit"));
        EXPECT_EQ(find<QGroupBox>(window, 20)->title(), QStringLiteral("&Options"));
        EXPECT_EQ(find<QLabel>(window, 21)->text(), QStringLiteral("Some  words"));
        window.reject();
    });
}

TEST_F(WidgetShellLists, theLabelOfAListIsBesideItAndAGroupHasAFrame)
{
    addList(1, "Encoding:");
    addGroup();
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        const auto* const box = find<QComboBox>(window, 2);
        const auto* const label = box->parentWidget()->findChild<QLabel*>();
        EXPECT_EQ(label->buddy(), box);
        EXPECT_LE(placeOf(*label).right(), placeOf(*box).left());
        EXPECT_FALSE(window.findChild<QGroupBox*>(QStringLiteral("customControl1"))) << "only a label";
        const auto* const group = find<QGroupBox>(window, 20);
        for (const DWORD id : {21u, 23u, 25u}) {
            EXPECT_TRUE(group->isAncestorOf(find<QWidget>(window, id))) << id;
        }
        EXPECT_FALSE(group->isAncestorOf(box));
        window.reject();
    });
}

TEST_F(WidgetShellLists, theTabKeyVisitsThemInTheirOrder)
{
    addList(1, "Encoding:");
    customize->AddPushButton(5, text("Button").c_str());
    addGroup();
    customize->SetSelectedControlItem(25, 1001);
    show([&](QFileDialog& window) {
        setActiveWindow(window);
        QStringList visited;
        QWidget* focus = find<QComboBox>(window, 2);
        focus->setFocus(Qt::TabFocusReason);
        for (int step = 0; step < 4; ++step) {
            focus = window.focusWidget();
            auto* const radio = qobject_cast<QRadioButton*>(focus);
            visited.append(radio ? radio->text() : focus->objectName());
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        EXPECT_EQ(visited.join(QLatin1Char(' ')).toStdString(), "customControl2 customControl5 customControl23 m");
        window.reject();
    });
}

TEST_F(WidgetShellLists, theArrowKeysChooseARadioButton)
{
    addGroup();
    customize->SetSelectedControlItem(25, 1000);
    show([&](QFileDialog& window) {
        setActiveWindow(window);
        auto* const first = find<QWidget>(window, 25)->findChild<QRadioButton*>();
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Down);
        QCoreApplication::processEvents();
        EXPECT_EQ(sink.count("OnItemSelected 25 1001"), 1);
        DWORD item = 0;
        EXPECT_EQ(customize->GetSelectedControlItem(25, &item), S_OK);
        EXPECT_EQ(item, 1001u);
        window.reject();
    });
}

TEST_F(WidgetShellLists, aChoiceIsToldBeforeTheDialogIsAccepted)
{
    addList(1, "Encoding:");
    customize->SetSelectedControlItem(2, 1000);
    dialog->SetFileName(text("a.txt").c_str());
    const HRESULT hr = show([&](QFileDialog& window) {
        auto* const box = find<QComboBox>(window, 2);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        FileDialogDriver(window).pressAccept(); // no event loop in between
    });
    EXPECT_EQ(hr, S_OK);
    const auto told = std::find(sink.log.begin(), sink.log.end(), "OnItemSelected 2 1001");
    const auto accepted = std::find(sink.log.begin(), sink.log.end(), "OnFileOk");
    EXPECT_TRUE(told < accepted && accepted != sink.log.end());
}

TEST_F(WidgetShellLists, rightToLeftMirrorsThem)
{
    addList(1, "Encoding:");
    customize->AddPushButton(5, text("Button").c_str());
    show([&](QFileDialog& window) {
        window.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        const auto* const box = find<QComboBox>(window, 2);
        const auto* const label = box->parentWidget()->findChild<QLabel*>();
        EXPECT_GE(placeOf(*label).left(), placeOf(*box).right());
        EXPECT_GE(placeOf(*box).left(), placeOf(*find<QPushButton>(window, 5)).right());
        window.reject();
    });
}

TEST_F(WidgetShellLists, manyControlsWrapAndScrollAndNoneIsCut)
{
    for (DWORD id = 100; id < 250; id += 3) {
        addList(id, "A list with a label:");
    }
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        const auto* const area = window.findChild<QScrollArea*>();
        const auto* const row = window.findChild<QWidget*>(QStringLiteral("customControls"));
        ASSERT_TRUE(area && row);
        EXPECT_GT(row->height(), area->viewport()->height()) << "it scrolls";
        EXPECT_LE(row->width(), area->viewport()->width()) << "it wraps";
        EXPECT_LT(area->height(), window.height() / 2 + 1) << "the list of files has room";
        std::vector<QRect> places;
        for (DWORD id = 100; id < 250; id += 3) {
            places.push_back(placeOf(*find<QComboBox>(window, id + 1)->parentWidget()));
            EXPECT_GE(places.back().height(), find<QComboBox>(window, id + 1)->minimumSizeHint().height());
            for (std::size_t i = 0; i + 1 < places.size(); ++i) {
                EXPECT_FALSE(places[i].intersects(places.back()));
            }
        }
        auto* const last = find<QComboBox>(window, 248);
        last->setFocus(Qt::TabFocusReason);
        QTest::keyClick(last, Qt::Key_Backtab, Qt::ShiftModifier);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        EXPECT_TRUE(QRect(QPoint(), area->viewport()->size())
                        .intersects(QRect(last->mapTo(area->viewport(), QPoint()), last->size())))
            << "the focus scrolls";
        window.reject();
    });
}

TEST_F(WidgetShellLists, aListThatWasNeverOpenedHasNoPopup)
{
    addList(1, "Encoding:");
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        auto* const box = find<QComboBox>(window, 2);
        EXPECT_TRUE(box->findChildren<QAbstractItemView*>().isEmpty());
        EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(QStringLiteral("Second")))
            << "room for its entries";
        box->showPopup();
        EXPECT_FALSE(box->findChildren<QAbstractItemView*>().isEmpty());
        box->hidePopup();
        window.reject();
    });
}

TEST_F(WidgetShellLists, twiceTheFontSizeCutsNothing)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    addList(1, "Encoding:");
    addGroup();
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        const auto* const row = window.findChild<QWidget*>(QStringLiteral("customControls"));
        for (const auto* const widget : row->findChildren<QWidget*>()) {
            const QSize needed = widget->minimumSizeHint();
            if (widget->isVisible() && needed.isValid()) {
                EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString();
                EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString();
            }
        }
        window.reject();
    });
    QApplication::setFont(usual);
}

TEST_F(WidgetShellLists, theDialogGrowsWithItsControlsAndKeepsTheListOfFiles)
{
    int without = 0;
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        without = window.findChild<QListView*>(QStringLiteral("listView"))->parentWidget()->height();
        window.reject();
    });
    addGroup();
    show([&](QFileDialog& window) {
        QCoreApplication::processEvents();
        EXPECT_GE(window.findChild<QListView*>(QStringLiteral("listView"))->parentWidget()->height(), without * 2 / 3);
        window.reject();
    });
}

TEST_F(WidgetShellLists, controlsThatAreAddedWhileItIsOpenHaveTheirLabels)
{
    show([&](QFileDialog& window) {
        addList(1, "Encoding:");
        addGroup();
        QCoreApplication::processEvents();
        EXPECT_TRUE(find<QComboBox>(window, 2)->isVisible());
        EXPECT_EQ(find<QComboBox>(window, 2)->accessibleName(), QStringLiteral("Encoding"));
        EXPECT_TRUE(find<QLineEdit>(window, 23)->isVisible());
        EXPECT_FALSE(find<QWidget>(window, 1)->isVisible()) << "the group has become a label";
        window.reject();
    });
}

} // namespace

} // namespace morvane::test
