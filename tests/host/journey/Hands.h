#pragma once

#include "host/base/HostError.h"

#include <QAbstractButton>
#include <QPoint>
#include <QString>

namespace schedules::host::testing {

// A person's mouse and keyboard. Events come in where those of the window system do, so that they go to whatever is at
// that point of the screen, or has the focus. What a person cannot do throws `HostError`.

/// A click on a point of a widget, or on its middle.
void Click(QWidget& widget, QPoint point);
void Click(QWidget& widget);
void DoubleClick(QWidget& widget, QPoint point);

/// A click on the button of that name, or with that text.
void ClickButton(const QWidget& in, const char* name);
void ClickCaption(const QWidget& in, const QString& text);

/// Scrolls by pixels: right and down with positive ones.
void Scroll(QWidget& surface, QPoint pixels);

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

/// Characters without a key come from an input method.
void Type(const QString& text);

/// Types over what there is in a field.
void TypeOver(QWidget& field, const QString& text);

/// The child of that name. Throws when there is none.
template <class Child = QWidget>
Child& Part(const QWidget& widget, const char* name)
{
    auto* child = widget.findChild<Child*>(QLatin1String(name));
    if (!child)
        throw HostError(QStringLiteral("there is no %1").arg(QLatin1String(name)));
    return *child;
}

} // namespace schedules::host::testing
