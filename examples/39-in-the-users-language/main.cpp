// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The texts of the library and of Qt in the language of the user, or in the one that the command line names: de, ar ...

#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/util/Translations.h"

#include <QApplication>
#include <QPushButton>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QLocale locale = argc > 1 ? QLocale(QString::fromLocal8Bit(argv[1])) : QLocale::system();

    //! [install]
    // The texts of the library and of Qt. Install the catalogue of the program itself after them.
    morvane::ui::installTranslations(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection()); // right to left for Arabic
    //! [install]

    QPushButton window("&Save…");
    QObject::connect(&window, &QPushButton::clicked, &window, [&window] {
        //! [texts]
        // Texts of Qt, such as those of tr(), and UTF-8 literals may stand side by side.
        SaveFileDialog dialog(&window, QObject::tr("Save report"), "", "report",
            {QObject::tr("HTML page (*.html)"), QObject::tr("Text (*.txt)")}, 0, "");
        //! [texts]
        dialog.launch();
    });
    window.resize(240, 60);
    window.show();
    return application.exec();
}
