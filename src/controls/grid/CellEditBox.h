#pragma once

#include <QLineEdit>

namespace schedules {

/// A line edit over a cell of a grid, for one value of at most 30 characters.
///
/// The limit holds for what is typed, pasted, dropped or comes from an input method; only full stops may be typed
/// beyond it. A longer value that is shown at the start stays whole until somebody types. Line breaks and tabs that are
/// inserted become blanks; characters that XML cannot hold are left out.
class CellEditBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit CellEditBox(QWidget* parent);

    static constexpr int kMaximumLength = 30;

    /// Shows a value at a place of the parent and takes the focus, all of the value selected.
    void Open(const QString& value, const QRect& place, Qt::Alignment valueAlignment);

    /// Shows another value, as it is.
    void SetValue(const QString& value);

    /// The value, with what an input method is still composing.
    QString FinishedValue();

    /// Hides the box and forgets the value.
    void Close();

Q_SIGNALS:
    void EnterPressed();
    void EscapePressed();
    void TabPressed(bool forward);

    /// `key` is up or down.
    void VerticalKeyPressed(Qt::Key key);

    /// The user has gone on to another widget of the window. Popup menus, input methods and other programs, from which
    /// the focus comes back, do not count.
    void FocusLeft();

    /// Something that was typed or inserted did not fit.
    void Refused();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PressCommandKey(int key);
    void Type(QKeyEvent* event);
    void CutToMaximum();
    void LookAtChange();
    void Tidy(qsizetype start, qsizetype length);
    bool TakeBack();

    /// Lets the text change without looking at the change.
    template <class Change>
    void Accepting(Change&& change);

    QString m_textBefore;
    QString m_composing; ///< what an input method has not committed yet
    bool m_accepting = false;
};

} // namespace schedules
