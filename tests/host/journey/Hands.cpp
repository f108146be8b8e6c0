#include "Hands.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace schedules::host::testing {

namespace {

QWindow& WindowOf(const QWidget& widget)
{
    QWindow* window = widget.window()->windowHandle();
    if (!widget.isVisible() || !window)
        throw HostError(QStringLiteral("%1 is not shown").arg(widget.objectName()));
    return *window;
}

QPoint InWindow(const QWidget& widget, QPoint point)
{
    return widget.mapTo(widget.window(), point);
}

QWidget* ModalDialog()
{
    return QApplication::activePopupWidget() ? nullptr : QApplication::activeModalWidget();
}

/// The window that a person works in.
QWidget* WindowInUse()
{
    const auto windows = QApplication::topLevelWidgets();
    const auto window = std::ranges::find_if(
        windows, [](const QWidget* each) { return each->isVisible() && each->windowType() == Qt::Window; });
    return window == windows.end() ? nullptr : *window;
}

/// When a dialog or a list of proposals closes a window manager gives the focus to the window below. Where there is
/// none a person does.
void TakeFocusBack()
{
    const QWindow* focus = QGuiApplication::focusWindow();
    if (focus && focus->isVisible())
        return;
    if (QWidget* window = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : WindowInUse())
        window->activateWindow();
}

/// The window that keys go to.
QWindow& FocusWindow()
{
    TakeFocusBack();
    const auto isReady = [] {
        const QWidget* modal = ModalDialog();
        return QGuiApplication::focusWindow() && (!modal || QGuiApplication::focusWindow() == modal->windowHandle());
    };
    if (!QTest::qWaitFor(isReady))
        throw HostError(QStringLiteral("no window has the focus"));
    return *QGuiApplication::focusWindow();
}

void Press(QAbstractButton& button)
{
    if (!button.isEnabled())
        throw HostError(QStringLiteral("%1 is not enabled").arg(button.objectName()));
    Click(button);
}

} // namespace

void Click(QWidget& widget, QPoint point)
{
    QTest::mouseClick(&WindowOf(widget), Qt::LeftButton, {}, InWindow(widget, point));
}

void Click(QWidget& widget)
{
    Click(widget, widget.rect().center());
}

void DoubleClick(QWidget& widget, QPoint point)
{
    QTest::mouseDClick(&WindowOf(widget), Qt::LeftButton, {}, InWindow(widget, point));
}

void ClickButton(const QWidget& in, const char* name)
{
    Press(Part<QAbstractButton>(in, name));
}

void ClickCaption(const QWidget& in, const QString& text)
{
    for (auto* button : in.findChildren<QAbstractButton*>()) {
        if (button->text().remove(u'&') == text)
            return Press(*button);
    }
    throw HostError(QStringLiteral("there is no button '%1'").arg(text));
}

void Scroll(QWidget& surface, QPoint pixels)
{
    const QPointF middle = surface.rect().center();
    QWheelEvent event(middle, surface.mapToGlobal(middle), -pixels, -pixels, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&surface, &event);
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&FocusWindow(), key, modifiers);
}

void Type(const QString& text)
{
    for (const char32_t character : text.toUcs4()) {
        if (character < 0x80) {
            QTest::keyClick(&FocusWindow(), static_cast<char>(character));
            continue;
        }
        QInputMethodEvent event;
        event.setCommitString(QString::fromUcs4(&character, 1));
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
}

void TypeOver(QWidget& field, const QString& text)
{
    Click(field);
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(text);
}

} // namespace schedules::host::testing
