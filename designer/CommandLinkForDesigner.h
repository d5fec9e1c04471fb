#pragma once

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

// Designer finds out what a widget is from the class name in its meta-object, and CorrectFontCommandLinkButton has none
// of its own. This class has one with that name: moc is shown the declaration under the name that it is to write down,
// and CommandLinkForDesigner.cpp gives the code that it generates the name of this class again.
#ifdef Q_MOC_RUN
#define CommandLinkForDesigner CorrectFontCommandLinkButton
#define CommandLinkBase QCommandLinkButton
#else
#define CommandLinkBase CorrectFontCommandLinkButton
#endif

namespace morvane::ui {

class CommandLinkForDesigner : public CommandLinkBase
{
    Q_OBJECT

public:
    explicit CommandLinkForDesigner(QWidget* parent);
    ~CommandLinkForDesigner() override;
};

} // namespace morvane::ui

#undef CommandLinkBase
