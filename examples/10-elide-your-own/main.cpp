// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The tool tip of an elided text in your own widget: here a button that elides its text.

#include "ui/qt/controls/ElidedTextUtil.h"

#include <QApplication>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

//! [rule]
class ElidingButton : public QPushButton
{
public:
    explicit ElidingButton(const QString& wholeText) : m_wholeText(wholeText) {}

protected:
    QSize minimumSizeHint() const override { return {60, QPushButton::minimumSizeHint().height()}; }

    void resizeEvent(QResizeEvent* event) override
    {
        QPushButton::resizeEvent(event);
        const int room = width() - 2 * style()->pixelMetric(QStyle::PM_ButtonMargin);
        setText(fontMetrics().elidedText(m_wholeText, Qt::ElideMiddle, room));
        // Sets the tool tip while the text is elided, clears it otherwise, and does not change a tool tip of other
        // code.
        ElidedTextUtil().updateToolTip(this, room, m_wholeText, m_wholeText);
    }

private:
    QString m_wholeText;
};
//! [rule]

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(new ElidingButton("Start the measurement with the settings of yesterday"));
    window.setWindowTitle("Eliding");
    window.resize(180, 40);
    window.show();
    return QApplication::exec();
}
