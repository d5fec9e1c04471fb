#pragma once

#include "ui/qt/controls/CorrectFontCommandLinkButton.h"

using CommandLinkForDesigner = morvane::ui::CorrectFontCommandLinkButton;
