// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "testing/QuestionScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>

namespace morvane::test {

namespace {

/**
 * Qt has listed the box twice as modal, since the attribute was set while it was being shown. From Qt 6.5 on,
 * QMessageBox clears the attribute before it is hidden. Then only the destructor of its window takes it from the list,
 * and only once.
 */
void listAsModalOnce(QMessageBox& box)
{
    box.setAttribute(Qt::WA_DontShowOnScreen, false);
    box.setAttribute(Qt::WA_DontShowOnScreen);
}

/** Clicks as soon as the event loop of the box or of the program runs. */
void clickLater(QMessageBox& box, QAbstractButton& button)
{
    QTimer::singleShot(0, &button, [&box, &button] {
        listAsModalOnce(box);
        button.click();
    });
}

void closeLater(QMessageBox& box)
{
    QTimer::singleShot(0, &box, [&box] {
        listAsModalOnce(box);
        if (box.close()) {
            return;
        }
        const auto buttons = box.buttons();
        const auto usable =
            std::find_if(buttons.begin(), buttons.end(), [](const QAbstractButton* one) { return one->isEnabled(); });
        if (usable != buttons.end()) {
            (*usable)->click();
        } else {
            box.done(QMessageBox::NoButton);
        }
    });
}

} // namespace

QuestionScript::QuestionScript()
{
    QApplication::instance()->installEventFilter(this);
}

QuestionScript::~QuestionScript() = default;

QuestionScript& QuestionScript::answers(const QString& text, QMessageBox::StandardButton button)
{
    m_answers.push_back({text, button});
    return *this;
}

bool QuestionScript::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            meet(*box);
        }
    }
    return false;
}

void QuestionScript::meet(QMessageBox& box)
{
    box.setAttribute(Qt::WA_DontShowOnScreen);
    m_asked.append(box.text());
    QAbstractButton* button = nullptr;
    if (!m_answers.empty() && box.text().contains(m_answers.front().text)) {
        button = box.button(m_answers.front().button);
    }
    if (!button || !button->isEnabled()) {
        m_wasSurprised = true;
        closeLater(box);
        return;
    }
    m_answers.pop_front();
    clickLater(box, *button);
}

} // namespace morvane::test
