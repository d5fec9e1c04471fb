#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

namespace morvane::ui {

CorrectFontCommandLinkButton::CorrectFontCommandLinkButton(QWidget* parent) : QCommandLinkButton(parent) {}

QSize CorrectFontCommandLinkButton::minimumSizeHint() const
{
    return sizeHint();
}

} // namespace morvane::ui
