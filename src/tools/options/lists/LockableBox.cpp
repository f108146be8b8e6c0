#include "tools/options/lists/LockableBox.h"

#include <QEvent>

namespace schedules {

void LockableBox::SetLocked(bool locked)
{
    setReadOnly(locked);
    FollowPalette();
}

void LockableBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        FollowPalette();
}

void LockableBox::FollowPalette()
{
    QPalette own; // what it does not set is the parent's
    if (IsLocked()) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            own.setBrush(group, QPalette::Base, palette().brush(group, QPalette::Window));
    }
    setPalette(own);
}

} // namespace schedules
