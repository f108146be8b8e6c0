#pragma once

#include <QKeyEvent>
#include <QLineEdit>

namespace schedules::testing {

/// What the box over a cell must hold, keystroke by keystroke: a line edit of the toolkit that gets the same keys, and
/// the rule for long values beside it. What it does not know (the clipboard, input methods, seldom characters) it
/// copies.
class BoxModel
{
public:
    BoxModel();

    /// A key goes to the box. False when the model cannot tell what becomes of it.
    bool Press(const QKeyEvent& key);

    /// Takes over what the box holds.
    void Copy(const QLineEdit& box);

    QString Text() const { return m_line.text(); }

    /// What a cell holds after a commit.
    QString Committed() const;

private:
    void Type(const QKeyEvent& key);
    void Send(const QKeyEvent& key);

    QLineEdit m_line;
};

} // namespace schedules::testing
