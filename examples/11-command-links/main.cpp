// Two ways to go on, each with a line that explains it, and never cut off, however small the window.

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>

using morvane::ui::CorrectFontCommandLinkButton;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);

    //! [buttons]
    auto* const import = new CorrectFontCommandLinkButton(&window);
    import->setText("&Import a measurement");
    import->setDescription("Reads a file that another program has written.");
    // Its smallest size is the one that shows both lines whole, in whatever font.
    layout->addWidget(import);
    //! [buttons]

    auto* const begin = new CorrectFontCommandLinkButton(&window);
    begin->setText("&Begin a new one");
    begin->setDescription("Starts recording with the instruments that are connected.");
    layout->addWidget(begin);

    QObject::connect(import, &QAbstractButton::clicked, &window, &QWidget::close);
    QObject::connect(begin, &QAbstractButton::clicked, &window, &QWidget::close);
    window.setWindowTitle("How do you want to go on?");
    window.show();
    return QApplication::exec();
}
