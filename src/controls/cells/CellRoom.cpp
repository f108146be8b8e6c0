#include "controls/cells/CellRoom.h"

#include <QPaintDevice>
#include <QTextLayout>

#include <cmath>

namespace schedules {

namespace {

constexpr int kVerticalPadding = 45;
constexpr double kTwipsPerInch = 1440;

/// Rounded down, so that texts lose no room.
int PixelsOf(int twips, int dpi)
{
    return static_cast<int>(std::floor(twips * dpi / kTwipsPerInch));
}

} // namespace

CellRoom::CellRoom(const QPaintDevice& device)
    : padding(PixelsOf(Sheet::kPadding, device.logicalDpiX())),
      verticalPadding(PixelsOf(kVerticalPadding, device.logicalDpiY()))
{
}

QTextOption PlainTextOption(QTextOption::WrapMode wrapMode)
{
    QTextOption option;
    option.setWrapMode(wrapMode);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    return option;
}

QString InLines(QString text)
{
    return text.replace(u'\n', QChar::LineSeparator);
}

void LayOutOnOneLine(QTextLayout& layout)
{
    layout.setCacheEnabled(true); // else it is shaped again when it is drawn
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

double LayOutInWidth(QTextLayout& layout, double width)
{
    double height = 0;
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

bool IsCutOff(const CellContent& content, const QSize& cell, const CellFaces& faces, const QPaintDevice& device)
{
    if (!content.Kind().showsText || content.text.isEmpty())
        return false;
    const double width = (CellRoom(device).Within({{}, cell}).width() + kRounding) / faces.Scale();
    QTextLayout layout(content.wraps ? InLines(content.text) : content.text, faces.Font(content.bold));
    if (content.wraps) {
        layout.setTextOption(PlainTextOption(QTextOption::WrapAtWordBoundaryOrAnywhere));
        return LayOutInWidth(layout, width) * faces.Scale() > cell.height();
    }
    layout.setTextOption(PlainTextOption(QTextOption::NoWrap));
    LayOutOnOneLine(layout);
    return layout.lineAt(0).naturalTextWidth() > width;
}

} // namespace schedules
