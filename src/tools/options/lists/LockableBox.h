#pragma once

#include <QLineEdit>

namespace schedules {

/// A text box whose background tells whether it can be edited: the palette's window colour when it is locked, the base
/// colour when it is not. Its text may have any length.
class LockableBox : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    bool IsLocked() const { return isReadOnly(); }
    void SetLocked(bool locked);

protected:
    void changeEvent(QEvent* event) override;

private:
    void FollowPalette();
};

} // namespace schedules
