#pragma once

#include <Qt>

#include <array>
#include <vector>

namespace schedules::rtf {

enum LookFlag : unsigned
{
    kBold = 1,
    kItalic = 2,
    kUnderline = 4,
    kStrike = 8,
    kCapitals = 16,
    kSmallCapitals = 32,
    kSuperscript = 64,
    kSubscript = 128,
    kHidden = 256
};

/// How characters look. Fonts and colours are numbers of the document's tables.
struct Look
{
    int font = -1;      ///< -1: the widget's own
    int halfPoints = 0; ///< 0: the widget's own size
    int foreground = 0; ///< 0: automatic
    int background = 0; ///< 0: none
    unsigned flags = 0;

    bool Has(LookFlag flag) const { return (flags & flag) != 0; }
    bool operator==(const Look&) const = default;
};

/// Lengths of a paragraph, in twips.
enum class Length
{
    Left,
    Right,
    FirstLine, ///< relative to the left one
    Before,
    After
};

struct Paragraph
{
    Qt::Alignment alignment;
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    std::array<int, 5> lengths{};
    int tabStops = 0; ///< in the document's tables; 0: none
    int bullet = 0;   ///< in the document's tables; 0: none

    bool operator==(const Paragraph&) const = default;
    int Of(Length length) const { return lengths[static_cast<std::size_t>(length)]; }
};

/// What the text of a group is.
enum class Destination
{
    Body,
    FontTable,
    ColorTable,
    List,       ///< describes the bullet or number of a paragraph; its own text is none
    BulletText, ///< of a list
    RowProperties
};

struct Group
{
    Look look;
    Paragraph paragraph;
    Destination destination = Destination::Body;
    int fallbackSize = 1; ///< characters behind a Unicode escape that repeat it
    bool isTwin = false;  ///< says in a code page what comes in Unicode, too
};

/// The open groups. The bottom one is there without a brace. From a depth of `kMaxDepth` on, groups share the state of
/// the last one that has its own.
class GroupStack
{
public:
    static constexpr std::size_t kMaxDepth = 262'144;

    GroupStack() : m_groups(1) {}

    void Open();
    /// A brace too many closes nothing.
    void Close();

    Group& Top() { return m_groups.back(); }
    const Group& Top() const { return m_groups.back(); }
    std::size_t Depth() const { return m_groups.size() - 1 + m_sharing; }
    bool IsShared() const { return m_sharing > 0; }

private:
    std::vector<Group> m_groups;
    std::size_t m_sharing = 0;
};

} // namespace schedules::rtf
