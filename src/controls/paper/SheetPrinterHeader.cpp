#include "controls/paper/SheetPrinterHeader.h"

#include "controls/paper/SheetPrinterFonts.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr int kGapBelow = 120;
constexpr int kMaximumHeight = 4320;

/// At a size where a pixel is a twip.
QFont FontOf(const HeaderLook& look)
{
    QFont font(look.font);
    font.setPixelSize(std::max(static_cast<int>(std::lround(look.size * kTwipsPerPoint)), 1));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(look.bold);
    return font;
}

Qt::Alignment AlignmentOf(std::size_t part)
{
    static constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    return Qt::AlignAbsolute | kAlignments[part];
}

QTextLayout::FormatRange FormatOf(const HeaderRun& run, qsizetype start)
{
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(start);
    range.length = static_cast<int>(run.text.size());
    range.format.setFont(FontOf(run.look));
    return range;
}

/// The next line of a text; none when it would start below the largest header that there is.
QTextLine NextLine(QTextLayout& layout, double top)
{
    return top < kMaximumHeight ? layout.createLine() : QTextLine();
}

/// Sets a part's text and fonts, and returns the height of its lines.
double LayOut(QTextLayout& layout, const std::vector<HeaderRun>& runs, Qt::Alignment alignment, double width)
{
    QString text;
    QList<QTextLayout::FormatRange> formats;
    for (const HeaderRun& run : runs) {
        formats.append(FormatOf(run, text.size()));
        text += run.text;
    }
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setText(text);
    layout.setFormats(formats);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = NextLine(layout, 0); line.isValid(); line = NextLine(layout, height)) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

/// Draws the lines that end above a limit.
void DrawLines(QPainter& painter, const QTextLayout& layout, double top, double limit)
{
    for (int index = 0; index < layout.lineCount(); ++index) {
        const QTextLine line = layout.lineAt(index);
        if (top + line.y() + line.height() <= limit)
            line.draw(&painter, {0, top});
    }
}

/// Calls `visit(layout, top)` for every part that has a text; returns the height of all lines.
template <class Visit>
double ForEachPart(const std::vector<HeaderLine>& lines, double width, Visit&& visit)
{
    double top = 0;
    for (const HeaderLine& line : lines) {
        double height = 0;
        for (std::size_t part = 0; part < line.parts.size(); ++part) {
            if (line.parts[part].empty())
                continue;
            QTextLayout layout;
            height = std::max(height, LayOut(layout, line.parts[part], AlignmentOf(part), width));
            visit(layout, top);
        }
        top += height > 0 ? height : QFontMetricsF(FontOf(line.look)).height();
    }
    return top;
}

} // namespace

SheetPrinterHeader::SheetPrinterHeader(const QString& codes) : m_lines(ReadPrintCodes(codes))
{
    const auto install = [](HeaderLook& look) { look.font = PrintFamily(look.font); };
    for (HeaderLine& line : m_lines) {
        install(line.look);
        for (auto& part : line.parts)
            std::ranges::for_each(part, install, &HeaderRun::look);
    }
}

int SheetPrinterHeader::Height(int width) const
{
    if (m_lines.empty())
        return 0;
    const double height = ForEachPart(m_lines, width, [](const QTextLayout&, double) {});
    return std::min(static_cast<int>(std::ceil(height)) + kGapBelow, kMaximumHeight);
}

void SheetPrinterHeader::Paint(QPainter& painter, double unit, const QRect& place) const
{
    painter.save();
    painter.scale(unit, unit);
    painter.translate(place.topLeft());
    painter.setPen(Qt::black);
    ForEachPart(m_lines, place.width(), [&](const QTextLayout& layout, double top) {
        DrawLines(painter, layout, top, place.height() - kGapBelow);
    });
    painter.restore();
}

} // namespace schedules
