#pragma once

#include <QDoubleValidator>
#include <QString>

class QDoubleSpinBox;
class QLineEdit;

namespace morvane::ui {

/**
 * Decides about each change of the line of a spin box. Between prefix and suffix, which it completes where they are
 * missing, it takes what a QDoubleValidator takes. The special value text may stand in the line, too.
 *
 * White space around the number, as it comes with a number from a spreadsheet, is left out. A change of which nothing
 * is left then, or which only touches prefix or suffix while the number is not selected, is refused.
 */
class NumberLineValidator : public QDoubleValidator
{
public:
    /** @param spinBox owner; asked for prefix, suffix and special value text */
    explicit NumberLineValidator(QDoubleSpinBox* spinBox);
    ~NumberLineValidator() override;

    /** Begins to follow what is selected in the line, to know whether a change replaces the number. */
    void follow(const QLineEdit& line);

    State validate(QString& input, int& pos) const override;

private:
    const QDoubleSpinBox& m_spinBox;
    mutable QString m_line; ///< as it was accepted last
    bool m_isNumberSelected = false;
};

} // namespace morvane::ui
