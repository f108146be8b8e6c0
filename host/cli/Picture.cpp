#include "host/cli/Picture.h"

#include "host/base/HostError.h"
#include "host/files/FileReplacement.h"
#include "host/tools/HostedSchedule.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageWriter>
#include <QPainter>

namespace schedules::host {

namespace {

constexpr QSize kSmallest{480, 320};
constexpr QSize kLargest{6000, 8000};

/// Lays the view out so that its grid needs no scroll bars, unless that would be too large.
void FitToGrid(HostedSchedule& view)
{
    QWidget& widget = view.Widget();
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.resize(kSmallest);
    widget.show();
    widget.resize(view.WholeSize().expandedTo(kSmallest).boundedTo(kLargest));
    // Scroll bars that are no longer needed go when the grid comes to its events.
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

QImage PictureOf(HostedSchedule& view, const QString& title)
{
    FitToGrid(view);
    QWidget& tool = view.Widget();
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
