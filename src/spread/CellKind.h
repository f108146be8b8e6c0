#pragma once

#include <QAccessible>

#include <array>
#include <cstdint>
#include <optional>

namespace schedules {

enum class CellType : std::uint8_t
{
    StaticText,
    CheckBox
};

/// How a user changes a cell that may be edited.
enum class EditedBy : std::uint8_t
{
    TextBox,
    Click ///< which changes it to its other state
};

/// Where in its cell a text stands, along the line: on screen, on paper and in files.
enum class CellEdge : std::uint8_t
{
    Near,
    Center,
    Far
};

/// What sets the cells of a type apart, for whoever shows, edits or exports them. They ask this table instead of
/// comparing types, so a further type is a further row here.
struct CellKind
{
    bool showsText = true;  ///< its text is painted and told as it stands; otherwise it stands for a state
    bool hasSymbol = false; ///< something is painted beside its text or in place of it
    EditedBy editedBy = EditedBy::TextBox;
    std::optional<CellEdge> edge; ///< where it stands, whatever its alignment says
    bool holdsNumber = false;     ///< a text that is a number is exported as one, whatever its data type says
    QAccessible::Role role = QAccessible::Cell;

    constexpr bool Toggles() const { return editedBy == EditedBy::Click; }
};

/// By `CellType`.
inline constexpr std::array kCellKinds{
    CellKind{},
    CellKind{.showsText = false,
             .hasSymbol = true,
             .editedBy = EditedBy::Click,
             .edge = CellEdge::Center,
             .holdsNumber = true},
};

} // namespace schedules
