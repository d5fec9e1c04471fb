// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What a property adds to the bare emission of its two signals.

#include "property/Property.h"
#include "support/Ratio.h"

using morvane::Property;

namespace {

/** A property, or the bare signals beside it, with one observer of each kind. */
struct Observers
{
    template <typename Typed, typename Untyped>
    void connectTo(Typed& typed, Untyped& untyped)
    {
        typed.connect([this](int v) { sum += v; });
        untyped.connect([this] { ++changes; });
    }

    long long sum = 0;
    long long changes = 0;
};

void setChanged(benchmark::State& state)
{
    Property<int> property;
    Observers observers;
    observers.connectTo(property.signalValueChanged, property.signalPropertyChanged);
    int value = 0;
    for (auto _ : state) {
        property.setValue(++value);
    }
    benchmark::DoNotOptimize(observers.sum + observers.changes);
}

void setEqual(benchmark::State& state)
{
    Property<int> property(7);
    Observers observers;
    observers.connectTo(property.signalValueChanged, property.signalPropertyChanged);
    for (auto _ : state) {
        int value = 7;
        benchmark::DoNotOptimize(value);
        property.setValue(value);
    }
    benchmark::DoNotOptimize(observers.sum + observers.changes);
}

void emitBoth(benchmark::State& state)
{
    boost::signals2::signal<void(const int&)> typed;
    boost::signals2::signal<void()> untyped;
    Observers observers;
    observers.connectTo(typed, untyped);
    int value = 0;
    for (auto _ : state) {
        typed(++value);
        untyped();
    }
    benchmark::DoNotOptimize(observers.sum + observers.changes);
}

void setChangedUnobserved(benchmark::State& state)
{
    Property<int> property;
    int value = 0;
    for (auto _ : state) {
        property.setValue(++value);
    }
}

void emitBothUnobserved(benchmark::State& state)
{
    boost::signals2::signal<void(const int&)> typed;
    boost::signals2::signal<void()> untyped;
    int value = 0;
    for (auto _ : state) {
        typed(++value);
        untyped();
    }
}

MORVANE_BENCHMARK(setChanged);
MORVANE_BENCHMARK(setEqual);
MORVANE_BENCHMARK(emitBoth);
MORVANE_BENCHMARK(setChangedUnobserved);
MORVANE_BENCHMARK(emitBothUnobserved);

MORVANE_RATIO(property_set_changed, setChanged, emitBoth, 1.5);
MORVANE_RATIO(property_set_equal, setEqual, setChanged, 0.3);
MORVANE_RATIO(property_set_unobserved, setChangedUnobserved, emitBothUnobserved, 0);

} // namespace
