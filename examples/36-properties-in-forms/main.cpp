// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A validated property in a form: two controls show and change the same value, and a label shows why one was rejected.

#include "property/Property.h"
#include "ui/qt/util/PropertyAdapter.h"

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

#include <boost/make_shared.hpp>

class EvenNumbers : public morvane::ValidatorInterface<int>
{
public:
    morvane::ValidationResult validate(const int& v) const override
    {
        return v % 2 == 0 ? morvane::ValidationResult()
                          : morvane::ValidationResult("The number of teeth must be even.");
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    auto* const number = new QSpinBox;
    auto* const slider = new QSlider(Qt::Horizontal);
    auto* const reason = new QLabel;
    number->setSingleStep(2);
    number->setKeyboardTracking(false); // a number is validated when it is typed to its end
    slider->setSingleStep(2);

    //! [bind]
    const auto teeth = boost::make_shared<morvane::Property<int>>(24);
    teeth->setValidator(boost::make_shared<EvenNumbers>());

    morvane::ui::PropertyAdapter adapter(teeth);
    adapter.bindTo(number);
    adapter.bindTo(slider);
    QObject::connect(&adapter, &morvane::ui::PropertyAdapter::valueRejected, reason,
        [reason](const QVariant&, const QString& text) { reason->setText(text); });
    QObject::connect(&adapter, &morvane::ui::PropertyAdapter::valueChanged, reason, &QLabel::clear);
    //! [bind]

    auto* const layout = new QFormLayout(&window);
    layout->addRow("&Teeth", number);
    layout->addRow("&Slider", slider);
    layout->addRow(reason);
    window.setWindowTitle("A property in a form");
    window.resize(420, 120);
    window.show();
    return application.exec();
}
