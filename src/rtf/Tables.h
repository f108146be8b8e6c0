#pragma once

#include "rtf/CodePage.h"
#include "rtf/Symbols.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QStringList>
#include <QTextOption>

#include <vector>

namespace schedules::rtf {

struct Font
{
    QString family;
    int charsetCodePage = 0; ///< 0: the document's
    int codePage = 0;        ///< if not 0, instead of that of the character set

    /// Whose symbols it shows instead of letters: a name says nothing in a font for the letters of a language.
    SymbolFont Symbols() const;
};

/// A tab stop, in twips from the margin of the page.
struct TabStop
{
    int position = 0;
    QTextOption::TabType type = QTextOption::LeftTab;
};

/// Lists of tab stops. A list is a number, and never changes: adding to one makes another, in constant time.
class TabStops
{
public:
    static constexpr int kMostOfList = 64;

    /// The list with one more, or itself when it is full.
    int Added(int list, const TabStop& stop);
    /// In the order in which they were added.
    std::vector<TabStop> Of(int list) const;

private:
    struct Link
    {
        TabStop stop;
        int before = 0;
        int count = 0;
    };

    std::vector<Link> m_links{1};
};

/// What numbers in the text stand for. Only the bullets have a first one that is used: it means "none".
struct Tables
{
    QHash<int, Font> fonts;
    QList<QColor> colors; ///< an invalid one is automatic
    TabStops tabStops;
    QStringList bullets{QString()};
    int codePage = kAnsiCodePage; ///< of text in fonts that have none

    /// The first, and those that are not there, are automatic.
    QColor Color(int number) const { return number == 0 ? QColor() : colors.value(number); }
    int CodePageOf(int font) const;
    SymbolFont SymbolsOf(int font) const;
    int AddBullet(const QString& text);
};

} // namespace schedules::rtf
