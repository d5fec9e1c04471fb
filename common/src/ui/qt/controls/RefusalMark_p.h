// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSpinBox>
#include <QObject>
#include <QPalette>
#include <QString>
#include <QTimer>

#include <functional>

class QLineEdit;

namespace morvane::ui {

/**
 * Shows that the text of a spin box is not acceptable: with the colour of the text, to style sheets, and to screen
 * readers.
 *
 * The colour changes at once. The accessible description changes when nothing was typed for a moment, because a number
 * that is being typed is often unfinished.
 */
class RefusalMark : public QObject
{
    Q_OBJECT

public:
    /**
     * @param spinBox      owner
     * @param line         its line edit
     * @param isAcceptable whether the text in the line is acceptable at the moment
     */
    RefusalMark(QAbstractSpinBox* spinBox, QLineEdit* line, std::function<bool()> isAcceptable);
    ~RefusalMark() override;

    bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool enabled);

    /** Whether the mark is enabled and the text is not acceptable. */
    bool isRefused() const { return m_isEnabled && !m_isAcceptable(); }

    /** Compares the mark with the text. Called by itself when the text changes, or what is acceptable. */
    void update();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setMarked(bool marked);
    void announce();
    void endAnnouncement();

    QAbstractSpinBox& m_spinBox;
    QLineEdit& m_line;
    const std::function<bool()> m_isAcceptable;
    bool m_isEnabled = false;
    bool m_isMarked = false;
    QString m_checkedText;
    QPalette m_palette;    ///< what the host has set for the line
    QTimer m_look;         ///< runs while the mark is shown
    QTimer m_announcement; ///< runs until the description changes
    QString m_description; ///< of the spin box, without the announcement
    QString m_announced;   ///< the description with the announcement; null if there is none
};

} // namespace morvane::ui
