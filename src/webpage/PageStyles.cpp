#include "webpage/PageStyles.h"

#include "spread/FileLook.h"

#include <QString>

#include <array>
#include <cmath>

namespace schedules {

namespace {

constexpr std::uint32_t kButtonFace = 0x8000000F;
constexpr std::uint32_t kDarkPaper = 0x1A1714; ///< as it stands in the rules below, red lowest

/// What every page has. Headers stay in sight while the table is scrolled, colors follow the reader's system, and on
/// paper the header row comes again on each page. Each text runs its own way, but all texts of a column stand at the
/// same edge, which the page's direction decides on.
constexpr std::string_view kCommonRules = R"css(
:root{--paper:#fff;--ink:#1b1f24;--line:#ccd1d6;--face:#eef1f4;--near:left;--far:right;color-scheme:light dark}
[dir=rtl]{--near:right;--far:left}
@media screen and (prefers-color-scheme:dark){:root{--paper:#14171a;--ink:#e4e7ea;--line:#3b4148;--face:#22272c}}
*{box-sizing:border-box}
body{margin:0;background:var(--paper);color:var(--ink);font:.875rem/1.4 Arial,"Liberation Sans",sans-serif}
.page{overflow:auto;max-height:100vh}
.page:focus-visible{outline:2px solid #2f6fb0;outline-offset:-2px}
table{border-collapse:separate;border-spacing:0;width:max-content;margin:0 1rem 1rem;border:solid var(--line);border-width:1px;border-inline-end-width:0;border-block-end-width:0}
caption{padding:1rem 0 .5rem;font-size:1.25rem;font-weight:bold;text-align:start}
th,td{padding:.2em .6em;max-width:32em;border:solid var(--line);border-width:0;border-inline-end-width:1px;border-block-end-width:1px;text-align:var(--near);vertical-align:top;font-weight:normal;white-space:pre-wrap;overflow-wrap:break-word;unicode-bidi:plaintext}
th{background:var(--face)}
thead th,thead td{position:sticky;top:0;z-index:2;background:var(--face);font-weight:bold;vertical-align:bottom}
.r tr>:first-child{position:sticky;inset-inline-start:0;z-index:1;background:var(--face)}
.r thead tr>:first-child{z-index:3}
.b{font-weight:bold}
.c{text-align:center}
.n{text-align:var(--far);font-variant-numeric:tabular-nums;white-space:pre}
.m{vertical-align:middle}
.e{vertical-align:bottom}
.s{background:var(--face)}
@media (max-width:40em){body{font-size:.8125rem}table{margin:0 .5rem .5rem}.r tbody tr>:first-child{max-width:9em}}
.paper{display:none}
@page{size:landscape;margin:10mm}
@media print{:root{--ink:#000;--line:#999;--face:#eee}.page{overflow:visible;max-height:none}table{table-layout:fixed;margin:0 0 5mm;break-inside:avoid}caption{break-after:avoid}th,td{padding:.15em .35em;max-width:none!important;position:static!important;white-space:pre-wrap!important;overflow-wrap:anywhere;-webkit-print-color-adjust:exact;print-color-adjust:exact}thead{display:table-header-group}tr{break-inside:avoid}}
)css";

std::string Hex(std::uint32_t color)
{
    return QStringLiteral("#%1%2%3")
        .arg(color & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(color >> 8 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(color >> 16 & 0xFF, 2, 16, QLatin1Char('0'))
        .toStdString();
}

/// A tint of the color on the dark page, faint enough for light text.
std::uint32_t InTheDark(std::uint32_t color)
{
    constexpr double kShare = 0.28;
    std::uint32_t tint = 0;
    for (const int shift : {0, 8, 16}) {
        const double mixed = (color >> shift & 0xFF) * kShare + (kDarkPaper >> shift & 0xFF) * (1 - kShare);
        tint |= static_cast<std::uint32_t>(std::lround(mixed)) << shift;
    }
    return tint;
}

std::string ColorRule(const std::string& name, std::uint32_t color)
{
    const std::string ink = NeedsWhiteText(color) ? "#fff" : "#000";
    return "." + name + "{background:" + Hex(color) + "!important;color:" + ink + "}\n" +
           "@media screen and (prefers-color-scheme:dark){." + name + "{background:" + Hex(InTheDark(color)) +
           "!important;color:var(--ink)}}\n";
}

std::string Rounded(double number)
{
    return QString::number(number, 'f', 2).toStdString();
}

/// Shares of the width, lest a group that is wider than the paper loses columns.
std::string GroupRules(const ColumnGroup& group, const std::string& table)
{
    if (group.widths.empty())
        return {};
    std::string rules = table + "{width:min(100%," + Rounded(group.width) + "pt)}\n";
    for (std::size_t number = 0; number < group.widths.size(); ++number) {
        rules += table + " col:nth-child(" + std::to_string(number + 1) +
                 "){width:" + Rounded(100 * group.widths[number] / group.width) + "%}\n";
    }
    return rules;
}

} // namespace

std::string GroupClass(std::size_t number)
{
    std::string name("g");
    return name.append(std::to_string(number + 1));
}

std::uint32_t PageFill(std::optional<std::uint32_t> backColor)
{
    if (!backColor)
        return PageLook::kNoFill;
    return *backColor == kButtonFace ? PageLook::kFaceFill : FixedColor(*backColor);
}

PageStyles::PageStyles(const Sheet& sheet) : m_colorClasses{{PageLook::kFaceFill, "s"}}
{
    for (const auto color : sheet.BackColorsSet()) {
        if (color)
            m_colorClasses.try_emplace(PageFill(color), std::string("k").append(std::to_string(m_colorClasses.size())));
    }
}

std::string PageStyles::ClassesOf(const PageLook& look) const
{
    constexpr std::array<std::string_view, 3> kEdges{"", "c", "n"};
    constexpr std::array<std::string_view, 3> kHeights{"", "e", "m"};
    std::string classes;
    const auto add = [&classes](std::string_view name) {
        classes.append(classes.empty() || name.empty() ? "" : " ").append(name);
    };
    add(look.bold ? "b" : "");
    add(kEdges[static_cast<std::size_t>(look.edge)]);
    add(kHeights[static_cast<std::size_t>(look.vAlign)]);
    if (look.fill != PageLook::kNoFill)
        add(m_colorClasses.at(look.fill));
    return classes;
}

std::string PageStyles::PaperRules(const PaperColumns& paper)
{
    std::string rules = "@media print{\nbody{font-size:" + Rounded(paper.points) + "pt}\n";
    if (paper.groups.size() > 1)
        rules += ".page{display:none}\n.paper{display:block}\n";
    for (std::size_t number = 0; number < paper.groups.size(); ++number)
        rules += GroupRules(paper.groups[number], std::string(".").append(GroupClass(number)));
    return rules + "}\n";
}

std::string PageStyles::Rules() const
{
    std::string rules(kCommonRules);
    for (const auto& [color, name] : m_colorClasses) {
        if (color != PageLook::kFaceFill)
            rules += ColorRule(name, color);
    }
    return rules;
}

} // namespace schedules
