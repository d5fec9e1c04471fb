#include <QWidget>

int main()
{
    return QWidget::staticMetaObject.className() ? 0 : 1;
}
