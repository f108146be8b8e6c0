#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace schedules::host {

/// A text for a cell, whose numbers are those that `dump` prints.
struct CellText
{
    int column = 0;
    int row = 0;
    QString text;

    bool operator==(const CellText&) const = default;
};

struct SortColumn
{
    int column = 0;
    bool descending = false;

    bool operator==(const SortColumn&) const = default;
};

/// What is done to a table as a user does it, in this order, after it was loaded and transposed.
struct UserActions
{
    QList<CellText> edits;
    QStringList ticks; ///< identifiers of tags
    std::optional<SortColumn> sort;
    bool pressContinue = false;
    QString save; ///< the file for what a press on Save hands over; empty: Save is not pressed

    bool operator==(const UserActions&) const = default;
};

} // namespace schedules::host
