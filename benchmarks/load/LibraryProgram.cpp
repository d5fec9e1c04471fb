#include "ui/qt/dialogs/QExtendedFileDialog.h"

int main()
{
    return QExtendedFileDialog::staticMetaObject.className() ? 0 : 1;
}
