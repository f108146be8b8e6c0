#include "controls/paper/SheetPrinterPages.h"

#include "common/modResource.h"
#include "controls/paper/SheetPrinterFonts.h"
#include "controls/paper/SheetPrinterTable.h"

#include <QTextLayout>

#include <cmath>

namespace schedules {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerMillimeter = kTwipsPerInch / 25.4;
constexpr double kTwipsPerPoint = 20;
constexpr int kPageNumberSize = 160;
constexpr int kPageNumberGap = 130;

PaperSize SizeOf(const QPageSize& paper)
{
    const QSizeF millimeters = paper.size(QPageSize::Millimeter);
    const auto twips = [](double length) { return static_cast<int>(std::lround(length * kTwipsPerMillimeter)); };
    return {twips(millimeters.width()), twips(millimeters.height())};
}

QPalette PaperPalette()
{
    QPalette palette(QColor(0xE6, 0xEA, 0xEE), Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, Qt::black);
    return palette;
}

QFont PageNumberFont()
{
    QFont font(PrintFamily(QStringLiteral("Arial")));
    font.setPixelSize(kPageNumberSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

SheetPrinterPages::SheetPrinterPages(const PrintJob& job, const QPaintDevice& device)
    : m_job(job),
      m_header(job.setup.header),
      m_layout(*job.sheet, SizeOf(job.paper), job.setup, [this](int width) { return m_header.Height(width); }),
      m_unit(device.logicalDpiY() / kTwipsPerInch),
      m_look{.palette = PaperPalette(), .drawing = TextDrawing::AsText, .direction = job.direction},
      m_faces(PrintedCellFont(job.sheet->Font()), device),
      m_numberFont(PageNumberFont())
{
}

QPageLayout SheetPrinterPages::PageLayout() const
{
    const auto points = [&](PageEdge edge) { return m_job.setup.Margin(edge) / kTwipsPerPoint; };
    const bool across = m_layout.Orientation() == PageOrientation::Across;
    QPageLayout layout(
        m_job.paper, across ? QPageLayout::Landscape : QPageLayout::Portrait,
        {points(PageEdge::Left), points(PageEdge::Top), points(PageEdge::Right), points(PageEdge::Bottom)},
        QPageLayout::Point, {});
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void SheetPrinterPages::Paint(QPainter& painter, int number)
{
    m_header.Paint(painter, m_unit, HeaderPlace());
    PaintTable(painter, number);
    PaintPageNumber(painter, number);
}

QRect SheetPrinterPages::Body() const
{
    const auto margin = [&](PageEdge edge) { return m_job.setup.Margin(edge); };
    return QRect(0, 0, m_layout.Paper().width, m_layout.Paper().height)
        .adjusted(margin(PageEdge::Left), margin(PageEdge::Top), -margin(PageEdge::Right), -margin(PageEdge::Bottom));
}

QRect SheetPrinterPages::HeaderPlace() const
{
    QRect place = Body();
    place.setHeight(m_header.Height(place.width()));
    return place;
}

void SheetPrinterPages::PaintTable(QPainter& painter, int number)
{
    const QRect header = HeaderPlace();
    const int width = static_cast<int>(std::lround(header.width() / m_layout.Scale()));
    const PrintPage page = m_layout.Page(number);
    const PrintedTable table{*m_job.sheet, m_job.setup, m_look, m_unit, width};
    painter.save();
    painter.translate(std::round(header.left() * m_unit), std::round((header.top() + header.height()) * m_unit));
    painter.scale(m_layout.Scale(), m_layout.Scale());
    SheetPrinterTable(painter, m_faces, table, page).Paint();
    painter.restore();
}

void SheetPrinterPages::PaintPageNumber(QPainter& painter, int number) const
{
    QTextLayout layout(ComponentText("Page %1 of %2").arg(number + 1).arg(Count()), m_numberFont);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QRect body = Body();
    const double left = body.left() + (body.width() - layout.lineAt(0).naturalTextWidth()) / 2;
    painter.save();
    painter.scale(m_unit, m_unit);
    painter.setPen(Qt::black);
    layout.draw(&painter, QPointF(left, body.top() + body.height() + kPageNumberGap));
    painter.restore();
}

} // namespace schedules
