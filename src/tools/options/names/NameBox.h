#pragma once

#include <QLineEdit>

#include <functional>

namespace schedules {

/// The text box of a data item's name. A click that brings the focus leaves the whole text selected, and its owner gets
/// the keys first.
class NameBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit NameBox(QWidget* parent);

    /// Gets each key that is pressed, and says whether it has taken it. It may delete the box.
    void OnKey(std::function<bool(int key)> taker) { m_taker = std::move(taker); }

Q_SIGNALS:
    /// The receiver may delete the box.
    void Focused();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<bool(int key)> m_taker;
    bool m_focusedByMouse = false;
};

} // namespace schedules
