#include "host/window/Palettes.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace schedules::host {

namespace {

/// What is the same in both: one accent, and disabled texts between text and ground.
QPalette WithAccent(QPalette palette, const QColor& accent, const QColor& quiet)
{
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::PlaceholderText, quiet);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, quiet);
    return palette;
}

QPalette Light()
{
    const QColor window(0xF0, 0xF0, 0xF0);
    QPalette palette(window, window);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF7, 0xF7));
    return WithAccent(palette, QColor(0x1F, 0x6F, 0xB5), QColor(0x8C, 0x8C, 0x8C));
}

QPalette Dark()
{
    const QColor window(0x2B, 0x2D, 0x30);
    const QColor text(0xE6, 0xE6, 0xE6);
    QPalette palette(QColor(0x3A, 0x3D, 0x41), window);
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1F, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x2A));
    palette.setColor(QPalette::ToolTipBase, window);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    return WithAccent(palette, QColor(0x3D, 0x8F, 0xD9), QColor(0x7F, 0x83, 0x88));
}

} // namespace

void UsePalette(Palette palette)
{
    static const QString desktopStyle = QApplication::style()->name();
    if (palette == Palette::Desktop) {
        if (QApplication::style()->name() != desktopStyle)
            QApplication::setStyle(desktopStyle);
        QApplication::setPalette(QPalette());
        return;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette == Palette::Dark ? Dark() : Light());
}

} // namespace schedules::host
