// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

const QString spinBox = QStringLiteral("spin box");

class ScientificInputEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        openGallery(QStringLiteral("scientific"));
    }
    /** A spin box keeps its unit while one types. */
    void typeInto(const Accessible& field, const QString& number, const QString& shown)
    {
        clickInto(field);
        screen().press({Key::Control}, 'a');
        screen().type(number);
        waitForText(field, shown);
    }
};

TEST_F(ScientificInputEndToEnd, takesANumberInScientificNotation)
{
    const Accessible charge = part(spinBox, QStringLiteral("Elementary charge:"));
    typeInto(charge, QStringLiteral("1.5e-07"), QStringLiteral("1.5e-07 C"));
    screen().press(Key::Return);
    waitForReport(QStringLiteral("Elementary charge changed to 1.5E-07"));
    waitForText(charge, QStringLiteral("1.5E-07 C"));
    closeGallery();
}

TEST_F(ScientificInputEndToEnd, stepsAsTheHostWants)
{
    const Accessible charge = part(spinBox, QStringLiteral("Elementary charge:"));
    typeInto(charge, QStringLiteral("2E-3"), QStringLiteral("2E-3 C"));
    screen().press(Key::Return);
    waitForReport(QStringLiteral("Elementary charge changed to 0.002"));
    screen().press(Key::Up);
    waitForReport(QStringLiteral("Elementary charge changed to 0.02"));
    screen().press(Key::Down);
    waitForText(charge, QStringLiteral("0.002 C"));
    screen().press(Key::Down);
    waitForText(charge, QStringLiteral("0.0002 C"));
    closeGallery();
}

TEST_F(ScientificInputEndToEnd, tellsWhatIsNoNumberInTheRange)
{
    const Accessible pressure = part(spinBox, QStringLiteral("Pressure:"));
    typeInto(pressure, QStringLiteral("25000"), QStringLiteral("25000"));
    part(QStringLiteral("label"), QStringLiteral("Invalid"));
    typeInto(pressure, QStringLiteral("15"), QStringLiteral("15"));
    part(QStringLiteral("label"), QStringLiteral("Intermediate, go on typing"));
    typeInto(pressure, QStringLiteral("15000"), QStringLiteral("15000"));
    screen().press(Key::Return);
    part(QStringLiteral("label"), QStringLiteral("Acceptable"));
    part(QStringLiteral("label"), QStringLiteral("15000"));
    closeGallery();
}

} // namespace

} // namespace morvane::test
