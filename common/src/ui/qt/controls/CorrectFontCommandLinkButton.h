#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QCommandLinkButton>

namespace morvane::ui {

/**
 * A command-link button that no layout squeezes below its preferred size: title and description stay readable in the
 * font that is set, and a layout with less room overflows instead.
 *
 * @snippet 11-command-links/main.cpp buttons
 */
class MORVANE_UI_EXPORT CorrectFontCommandLinkButton : public QCommandLinkButton
{
public:
    /** @param parent owner; null for a window of its own that the caller deletes */
    explicit CorrectFontCommandLinkButton(QWidget* parent = nullptr);

    /** The preferred size. */
    QSize minimumSizeHint() const override;
};

} // namespace morvane::ui
