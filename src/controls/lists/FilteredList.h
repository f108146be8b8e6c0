#pragma once

#include "controls/lists/CheckList.h"

#include <QLineEdit>
#include <QWidget>

namespace schedules {

/// A check list below a line in which the user types what the entries to be shown contain. The line is there while the
/// list holds more than 20 entries and is emptied when it goes. Escape empties it, Down leads to the list.
class FilteredList : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool narrowed READ IsNarrowed NOTIFY Narrowed)

public:
    /// Lists of up to so many entries need no line.
    static constexpr int kMostWithoutLine = 20;

    /// Takes the list over as its child.
    explicit FilteredList(CheckList* list, QWidget* parent = nullptr);

    /// Whether something is typed into the line, so that entries cannot be moved.
    bool IsNarrowed() const { return !m_line->text().isEmpty(); }

    QLineEdit& Line() const { return *m_line; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The list has become narrowed, or whole again.
    void Narrowed(bool narrowed);

private:
    void BuildLine();
    void ShowLineWhenNeeded();
    void Apply(const QString& text);
    bool HandleLineEvent(QEvent* event);

    CheckList* m_list;
    QLineEdit* m_line;
    bool m_wasNarrowed = false;
};

} // namespace schedules
