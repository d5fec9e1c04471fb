#include "testing/QuestionScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace morvane::test {

namespace {

/** Once the box runs its event loop, or the program its own. */
void clickLater(QAbstractButton& button)
{
    QTimer::singleShot(0, &button, [&button] { button.click(); });
}

void closeLater(QMessageBox& box)
{
    QTimer::singleShot(0, &box, [&box] {
        if (!box.close() && !box.buttons().isEmpty()) {
            box.buttons().first()->click();
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
    if (!button) {
        m_wasSurprised = true;
        closeLater(box);
        return;
    }
    m_answers.pop_front();
    clickLater(*button);
}

} // namespace morvane::test
