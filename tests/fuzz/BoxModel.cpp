#include "fuzz/BoxModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <limits>

namespace schedules::testing {

namespace {

constexpr int kMostTyped = 30;
constexpr std::array kMoving{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete, Qt::Key_Backspace};

bool IsWhiteSpace(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\r' || character == u'\n';
}

} // namespace

BoxModel::BoxModel()
{
    m_line.setMaxLength(std::numeric_limits<int>::max());
}

bool BoxModel::Press(const QKeyEvent& key)
{
    const bool isPlain = (key.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    const bool isTyped = key.text().size() == 1 && key.text().front() >= u' ' && key.text().front() < u'\x7F';
    if (isPlain && std::ranges::count(kMoving, key.key()))
        Send(key);
    else if (isPlain && isTyped)
        Type(key);
    else
        return false;
    return true;
}

void BoxModel::Type(const QKeyEvent& key)
{
    if (key.text() == QLatin1String(".") || m_line.text().size() < kMostTyped)
        return Send(key);
    if (m_line.text().size() > kMostTyped)
        m_line.setText(m_line.text().left(kMostTyped));
}

void BoxModel::Send(const QKeyEvent& key)
{
    QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text());
    QCoreApplication::sendEvent(&m_line, &copy);
}

void BoxModel::Copy(const QLineEdit& box)
{
    m_line.setText(box.text());
    m_line.setCursorPosition(box.cursorPosition());
    if (!box.hasSelectedText())
        return;
    // The cursor stands at the end that moves.
    const int start = box.selectionStart();
    const int length = box.selectionLength();
    if (box.cursorPosition() == start)
        m_line.setSelection(start + length, -length);
    else
        m_line.setSelection(start, length);
}

QString BoxModel::Committed() const
{
    return std::ranges::all_of(m_line.text(), IsWhiteSpace) ? QString() : m_line.text();
}

} // namespace schedules::testing
