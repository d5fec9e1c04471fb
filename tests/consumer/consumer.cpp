// Uses one piece of each library with nothing but the installed headers, and with Qt's keywords switched on.
#include "host/StringConversion.h"
#include "property/Property.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <QApplication>

#include <boost/make_shared.hpp>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    int announced = 0;
    const auto count = boost::make_shared<morvane::Property<int>>(1);
    count->signalValueChanged.connect([&announced](const int& value) { announced = value; });
    count->setValue(2);

    QWidget window;
    QExtendedFileDialog dialog(window, "Open", "", "Data (*.dat);;All (*)", "", QFileDialog::AcceptOpen);

    const bool works = announced == 2 && dialog.nameFilters().size() == 2 && morvane::utf8ToWideString("x") == L"x";
    return works ? 0 : 1;
}
