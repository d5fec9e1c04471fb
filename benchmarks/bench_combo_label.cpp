// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The filtering combo box and its completer beside Qt's own, and the elided label beside the label that it rests on.
#include "support/ProcessorTime.h"
#include "support/Ratio.h"

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/ElidedTextLabel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPixmap>
#include <QStringListModel>

#include <array>
#include <random>

namespace {

/** Names as a measurement archive has them: place, quantity, run. Each is another one. */
QStringList realisticNames(int count)
{
    static const std::array<const char*, 12> places = {"bearing", "shaft", "gearbox", "inlet", "outlet", "housing",
        "spindle", "coolant", "exhaust", "stator", "rotor", "foundation"};
    static const std::array<const char*, 8> quantities = {
        "temperature", "pressure", "vibration", "speed", "torque", "humidity", "current", "displacement"};
    std::mt19937 engine(5);
    QStringList names;
    names.reserve(count);
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("%1-%2_%3_%4.dat")
                         .arg(QLatin1String(places[engine() % places.size()]))
                         .arg(engine() % 40)
                         .arg(QLatin1String(quantities[engine() % quantities.size()]))
                         .arg(i, 7, 10, QLatin1Char('0')));
    }
    return names;
}

QStringListModel& namesModel(int count)
{
    // Never deleted, as little as the boxes that show them.
    static auto* const small = new QStringListModel(realisticNames(100000));
    if (count == 100000) {
        return *small;
    }
    static auto* const large = new QStringListModel(realisticNames(count));
    return *large;
}

/** Handles the events until nothing is left to paint: a popup lays its rows out in one turn and paints in the next. */
void settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
    }
}

/** Notes whether a widget was painted. */
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }

    bool isPainted = false;
};

/** A stock combo box whose completer's popup was told that all rows have one height. The stock one measures each row.
 */
class UniformComboBox : public QComboBox
{
public:
    using QComboBox::QComboBox;
};

/** A shown combo box with popup completion of what the entries contain. */
template <typename Box>
struct Field
{
    explicit Field(QStringListModel& model)
    {
        box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        setUp(box, model);
        box.resize(300, 30);
        box.show();
        box.activateWindow();
        box.setFocus();
        settle();
    }

    static void setUp(morvane::ui::ComboBoxAutoFilter& own, QStringListModel& model)
    {
        own.setListModel(
            &model, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    }

    static void setUp(QComboBox& stock, QStringListModel& model)
    {
        stock.setModel(&model);
        stock.setEditable(true);
        stock.setInsertPolicy(QComboBox::NoInsert);
        auto* const completer = new QCompleter(&model, &stock);
        completer->setFilterMode(Qt::MatchContains);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->popup()->setTextElideMode(Qt::ElideRight);
        stock.setCompleter(completer);
    }

    static void setUp(UniformComboBox& stock, QStringListModel& model)
    {
        setUp(static_cast<QComboBox&>(stock), model);
        static_cast<QListView*>(stock.completer()->popup())->setUniformItemSizes(true);
    }

    void key(int code, const QString& text)
    {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(box.lineEdit(), &press);
        benchmark::DoNotOptimize(box.completer()->completionModel()->rowCount());
    }

    /** Back to an empty line, nothing offered, and nothing remembered of earlier prefixes. */
    void forget()
    {
        box.completer()->popup()->hide();
        box.lineEdit()->clear();
        // Before the rest: a completer may filter again as soon as the case sensitivity changes.
        box.completer()->setCompletionPrefix(QString());
        box.completer()->setCaseSensitivity(Qt::CaseSensitive);
        box.completer()->setCaseSensitivity(Qt::CaseInsensitive);
        settle();
    }

    Box box{nullptr};
};

template <typename Box>
Field<Box>& field(int count)
{
    // Never deleted: they would outlive the application object.
    static auto* const small = new Field<Box>(namesModel(100000));
    if (count == 100000) {
        return *small;
    }
    static auto* const large = new Field<Box>(namesModel(count));
    return *large;
}

/** Measures a key alone; @p prepare is not counted. */
template <typename Prepare, typename Key>
void measureKey(benchmark::State& state, Prepare prepare, Key key)
{
    for (auto _ : state) {
        prepare();
        const double start = morvane::bench::processorSeconds();
        key();
        state.SetIterationTime(morvane::bench::processorSeconds() - start);
    }
}

/** The filtered list for a text that was pasted. Each time, nothing is known of earlier texts. */
template <typename Box>
void filterMillion(benchmark::State& state, const QString& text, int expected)
{
    Field<Box>& own = field<Box>(1000000);
    const auto filter = [&] {
        own.box.completer()->setCompletionPrefix(text);
        benchmark::DoNotOptimize(own.box.completer()->completionModel()->rowCount());
    };
    measureKey(
        state, [&] { own.forget(); }, filter);
    if (own.box.completer()->completionModel()->rowCount() < expected) {
        state.SkipWithError("too few entries were found");
    }
    own.forget();
}

template <typename Box>
void firstKey(benchmark::State& state, int count)
{
    Field<Box>& own = field<Box>(count);
    measureKey(
        state, [&] { own.forget(); }, [&] { own.key(Qt::Key_P, QStringLiteral("p")); });
    own.forget();
}

/** The second letter, until the shorter list is painted. Both popups lay it out, one with the key, the other later. */
template <typename Box>
void nextKey(benchmark::State& state)
{
    Field<Box>& own = field<Box>(100000);
    PaintWatch popup(*own.box.completer()->popup()->viewport());
    const auto prepare = [&] {
        own.forget();
        own.key(Qt::Key_P, QStringLiteral("p"));
        settle();
        popup.isPainted = false;
    };
    const auto key = [&] {
        own.key(Qt::Key_R, QStringLiteral("r"));
        settle();
    };
    measureKey(state, prepare, key);
    if (!popup.isPainted) {
        state.SkipWithError("the list was not painted");
    }
    own.forget();
}

/**
 * The line is emptied by hand, and the whole list is asked for again. The entries with the letter are known by then.
 * The work is so small that it depends on what the processor's caches hold, so it starts from a list that was painted.
 */
template <typename Box>
void clearing(benchmark::State& state)
{
    Field<Box>& own = field<Box>(100000);
    own.forget();
    const auto type = [&] {
        own.key(Qt::Key_P, QStringLiteral("p"));
        settle();
    };
    const auto clear = [&] {
        own.key(Qt::Key_Backspace, QString());
        own.box.completer()->setCompletionPrefix(QString());
        benchmark::DoNotOptimize(own.box.completer()->completionModel()->rowCount());
        settle();
    };
    type();
    clear();
    measureKey(state, type, clear);
    own.forget();
}

using Own = morvane::ui::ComboBoxAutoFilter;

void comboFirstKey(benchmark::State& state)
{
    firstKey<Own>(state, 100000);
}

void stockFirstKey(benchmark::State& state)
{
    firstKey<QComboBox>(state, 100000);
}

void comboFirstKeyOfMillion(benchmark::State& state)
{
    firstKey<Own>(state, 1000000);
}

void stockFirstKeyOfMillion(benchmark::State& state)
{
    firstKey<QComboBox>(state, 1000000);
}

void comboNextKey(benchmark::State& state)
{
    nextKey<Own>(state);
}

void uniformNextKey(benchmark::State& state)
{
    nextKey<UniformComboBox>(state);
}

void comboClear(benchmark::State& state)
{
    clearing<Own>(state);
}

void uniformClear(benchmark::State& state)
{
    clearing<UniformComboBox>(state);
}

/** With words that are compared in any order. */
class WordsComboBox : public Own
{
public:
    explicit WordsComboBox(QWidget* parent) : Own(parent) { setMatchingWords(true); }
};

/** With accents that are ignored, too. */
class AccentsComboBox : public WordsComboBox
{
public:
    explicit AccentsComboBox(QWidget* parent) : WordsComboBox(parent) { setIgnoringAccents(true); }
};

void wordsOfMillion(benchmark::State& state)
{
    filterMillion<WordsComboBox>(state, QStringLiteral("pressure bearing"), 5000);
}

void accentsOfMillion(benchmark::State& state)
{
    filterMillion<AccentsComboBox>(state, QStringLiteral("pressure bearing"), 5000);
}

void stockContainsOfMillion(benchmark::State& state)
{
    filterMillion<UniformComboBox>(state, QStringLiteral("pressure"), 5000);
}

/** A combo box whose line holds the last of 100,000 entries. */
Own& boxAtTheEnd()
{
    static Own* const box = [] {
        auto* const made = new Own(nullptr);
        made->setListModel(&namesModel(100000), true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight,
            Qt::MatchContains);
        made->setCurrentIndex(made->count() - 1);
        return made;
    }();
    return *box;
}

void comboValidate(benchmark::State& state)
{
    Own& box = boxAtTheEnd();
    for (auto _ : state) {
        benchmark::DoNotOptimize(box.validateEntry());
    }
}

void stockFindText(benchmark::State& state)
{
    const Own& box = boxAtTheEnd();
    for (auto _ : state) {
        benchmark::DoNotOptimize(box.findText(box.lineEdit()->text(), Qt::MatchContains));
    }
}

/** Paints a label that has room for a part of a long path. */
template <typename Label>
void paint(benchmark::State& state)
{
    Label label;
    label.setAlignment(Qt::AlignLeft);
    label.setElideMode(Qt::ElideLeft);
    label.setText(QStringLiteral("/srv/measurements/2024/campaign-17/bearing-12/pressure_0004711.dat"));
    label.resize(label.sizeHint().width() / 2, label.sizeHint().height());
    QPixmap target(label.size());
    for (auto _ : state) {
        label.render(&target);
    }
}

void elidedLabelPaint(benchmark::State& state)
{
    paint<ElidedTextLabel>(state);
}

void plainLabelPaint(benchmark::State& state)
{
    paint<morvane::compat::QxtLabel>(state);
}

// Few where the stock completer is one of the two: it takes a third of a second for a key, and 3 seconds in a million.
MORVANE_BENCHMARK(comboFirstKey)->UseManualTime()->Iterations(1)->Repetitions(15);
MORVANE_BENCHMARK(stockFirstKey)->UseManualTime()->Iterations(1)->Repetitions(15);
MORVANE_BENCHMARK(comboNextKey)->UseManualTime()->Iterations(1)->Repetitions(61);
MORVANE_BENCHMARK(uniformNextKey)->UseManualTime()->Iterations(1)->Repetitions(61);
MORVANE_BENCHMARK(comboClear)->UseManualTime()->Iterations(1)->Repetitions(201);
MORVANE_BENCHMARK(uniformClear)->UseManualTime()->Iterations(1)->Repetitions(201);
MORVANE_BENCHMARK(comboFirstKeyOfMillion)->UseManualTime()->Iterations(1)->Repetitions(5);
MORVANE_BENCHMARK(stockFirstKeyOfMillion)->UseManualTime()->Iterations(1)->Repetitions(5);
MORVANE_BENCHMARK(wordsOfMillion)->UseManualTime()->Iterations(1)->Repetitions(9);
MORVANE_BENCHMARK(accentsOfMillion)->UseManualTime()->Iterations(1)->Repetitions(9);
MORVANE_BENCHMARK(stockContainsOfMillion)->UseManualTime()->Iterations(1)->Repetitions(9);
MORVANE_BENCHMARK(comboValidate);
MORVANE_BENCHMARK(stockFindText);
MORVANE_BENCHMARK(elidedLabelPaint);
MORVANE_BENCHMARK(plainLabelPaint);

MORVANE_RATIO(completer_first_key, comboFirstKey, stockFirstKey, 1.1);
MORVANE_RATIO(completer_next_key, comboNextKey, uniformNextKey, 1.2);
MORVANE_RATIO(completer_clear, comboClear, uniformClear, 1.2);
MORVANE_RATIO(completer_first_key_1m, comboFirstKeyOfMillion, stockFirstKeyOfMillion, 1.1);
MORVANE_RATIO(completer_words_1m, wordsOfMillion, stockContainsOfMillion, 1.2);
MORVANE_RATIO(completer_accents_1m, accentsOfMillion, stockContainsOfMillion, 1.2);
MORVANE_RATIO(combo_find, comboValidate, stockFindText, 1.0);
MORVANE_RATIO(label_paint, elidedLabelPaint, plainLabelPaint, 1.5);

} // namespace
