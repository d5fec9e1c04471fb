// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Fonts that the program ships, without installing them. The first argument is a font file or a directory.

#include "ui/qt/util/Fonts.h"

#include <QApplication>
#include <QFileInfo>
#include <QFontComboBox>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QString place = QApplication::arguments().value(1, QApplication::applicationDirPath() + "/fonts");

    //! [fonts]
    // After the application object, before the first widget. A file that is not a font gives one warning in the log.
    if (QFileInfo(place).isDir()) {
        morvane::ui::addFontsToDatabase(place);
    } else {
        morvane::ui::addFontToDatabase(place);
    }
    //! [fonts]

    QFontComboBox families;
    families.setWindowTitle("Fonts that this program can use");
    families.resize(360, families.sizeHint().height());
    families.show();
    return QApplication::exec();
}
