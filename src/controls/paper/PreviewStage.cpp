#include "controls/paper/PreviewStage.h"

#include "common/Error.h"
#include "controls/paper/SheetPrinterPages.h"

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr int kAround = 12;
constexpr double kTwipsPerInch = 1440;
constexpr double kInchesPerMeter = 1 / 0.0254;

/// Blank paper at a resolution.
QImage Blank(QSize paper, int dpi)
{
    const auto pixels = [&](int twips) {
        return std::max(static_cast<int>(std::lround(twips * dpi / kTwipsPerInch)), 1);
    };
    QImage image(pixels(paper.width()), pixels(paper.height()), QImage::Format_RGB32);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dpi * kInchesPerMeter)));
    image.setDotsPerMeterY(static_cast<int>(std::lround(dpi * kInchesPerMeter)));
    image.fill(Qt::white);
    return image;
}

} // namespace

PreviewStage::PreviewStage(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(320, 320);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewStage::Show(const PrintJob& job, int page)
{
    m_job = job;
    const SheetPrinterPages pages(m_job, QImage(1, 1, QImage::Format_RGB32));
    m_pageCount = pages.Count();
    m_page = std::clamp(page, 0, m_pageCount - 1);
    m_paper = {pages.Layout().Paper().width, pages.Layout().Paper().height};
    m_picture = {};
    update();
}

QImage PreviewStage::Picture() const
{
    const QSizeF room = QSizeF(width() - 2 * kAround, height() - 2 * kAround) * devicePixelRatioF();
    const double fit = std::min(room.width() / m_paper.width(), room.height() / m_paper.height());
    QImage picture = Blank(m_paper, std::max(static_cast<int>(fit * kTwipsPerInch), 1));
    QPainter painter(&picture);
    SheetPrinterPages(m_job, picture).Paint(painter, m_page);
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatioF());
    return picture;
}

void PreviewStage::paintEvent(QPaintEvent*)
{
    if (m_pageCount == 0)
        return;
    IgnoringErrors([this] {
        if (m_picture.isNull())
            m_picture = Picture();
        const QSizeF size = m_picture.deviceIndependentSize();
        const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
        QPainter painter(this);
        painter.fillRect(QRectF(corner + QPointF(2, 2), size), palette().color(QPalette::Shadow));
        painter.drawImage(corner.toPoint(), m_picture);
    });
}

void PreviewStage::resizeEvent(QResizeEvent* event)
{
    m_picture = {};
    QWidget::resizeEvent(event);
}

} // namespace schedules
