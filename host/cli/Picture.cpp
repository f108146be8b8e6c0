#include "host/cli/Picture.h"

#include "host/base/HostError.h"
#include "host/files/FileReplacement.h"

#include <QAbstractScrollArea>
#include <QBuffer>
#include <QCoreApplication>
#include <QImageWriter>
#include <QPainter>
#include <QScrollBar>

namespace schedules::host {

namespace {

constexpr QSize kSmallest{480, 320};
constexpr QSize kLargest{6000, 8000};

/// The scroll area that shows the sheet: the largest one of the tool.
QAbstractScrollArea* GridArea(const QWidget& tool)
{
    QAbstractScrollArea* largest = nullptr;
    for (auto* area : tool.findChildren<QAbstractScrollArea*>()) {
        const auto extent = [](const QWidget* widget) { return widget->width() * widget->height(); };
        if (area->isVisible() && (!largest || extent(area) > extent(largest)))
            largest = area;
    }
    return largest;
}

/// The size of all that the area can scroll over.
QSize ContentSize(const QAbstractScrollArea& area)
{
    const QSize beyond(area.horizontalScrollBar()->maximum(), area.verticalScrollBar()->maximum());
    return area.viewport()->size() + beyond;
}

/// Lays the tool out so that its grid needs no scroll bars, unless that would be too large.
void FitToGrid(QWidget& tool)
{
    tool.setAttribute(Qt::WA_DontShowOnScreen);
    tool.resize(kSmallest);
    tool.show();
    const QAbstractScrollArea* area = GridArea(tool);
    if (!area)
        return;
    const QSize around = tool.size() - area->maximumViewportSize();
    tool.resize((ContentSize(*area) + around).expandedTo(kSmallest).boundedTo(kLargest));
    // Scroll bars that are no longer needed go when the area comes to its events.
    QCoreApplication::sendPostedEvents();
}

QFont HeadingFont(const QWidget& tool)
{
    QFont font = tool.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.5);
    return font;
}

} // namespace

QImage PictureOf(QWidget& tool, const QString& title)
{
    FitToGrid(tool);
    const QFontMetrics metrics(HeadingFont(tool));
    const int padding = metrics.height() / 2;
    const int heading = title.isEmpty() ? 0 : metrics.height() + 2 * padding;

    QImage picture(tool.size() + QSize(0, heading), QImage::Format_RGB32);
    picture.fill(tool.palette().color(QPalette::Window));
    QPainter painter(&picture);
    painter.setFont(HeadingFont(tool));
    painter.setPen(tool.palette().color(QPalette::WindowText));
    const QRect line(padding, 0, picture.width() - 2 * padding, heading);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeading,
                     metrics.elidedText(title, Qt::ElideRight, line.width()));
    tool.render(&painter, QPoint(0, heading));
    return picture;
}

void WritePng(const QImage& picture, const QString& fileName)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    if (!buffer.open(QIODevice::WriteOnly) || !writer.write(picture))
        throw HostError(QStringLiteral("cannot write %1: %2").arg(fileName, writer.errorString()));
    ReplaceFile(fileName, buffer.data());
}

} // namespace schedules::host
