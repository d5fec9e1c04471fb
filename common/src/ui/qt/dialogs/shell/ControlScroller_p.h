// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

namespace morvane::ui {

/**
 * Shows a widget whose height depends on its width. It is as high as the widget, but leaves room for the rest of the
 * dialog: beyond some lines of text the widget scrolls. The keyboard reaches only the widgets inside.
 */
class ControlScroller : public QScrollArea
{
public:
    ControlScroller(QWidget* content, QWidget* parent);
    ~ControlScroller() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int highest() const;
};

} // namespace morvane::ui
