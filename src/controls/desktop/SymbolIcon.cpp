#include "controls/desktop/SymbolIcon.h"

#include "controls/cells/SheetColors.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPointer>
#include <QSvgRenderer>
#include <QWidget>

#include <utility>

namespace schedules {

namespace {

/// What a shape needs at least to be made out beside text.
constexpr double kVisibleContrast = 3;
constexpr double kPaleShare = 0.35;

struct SymbolColors
{
    QColor text;
    QColor accent;
};

/// Many a palette is given colors without a thought for its disabled ones, so these are not asked.
QColor PaleText(const QPalette& palette)
{
    return Blend(palette.color(QPalette::Window), palette.color(QPalette::ButtonText), kPaleShare);
}

QColor Accent(const QPalette& palette)
{
    const QColor accent = palette.color(QPalette::Highlight);
    const bool isVisible = Contrast(accent, palette.color(QPalette::Window)) >= kVisibleContrast;
    return isVisible ? accent : palette.color(QPalette::ButtonText);
}

SymbolColors ColorsOf(const QPalette& palette, QIcon::Mode mode)
{
    switch (mode) {
    case QIcon::Disabled:
        return {PaleText(palette), PaleText(palette)};
    case QIcon::Selected:
        return {palette.color(QPalette::HighlightedText), palette.color(QPalette::HighlightedText)};
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return {palette.color(QPalette::ButtonText), Accent(palette)};
}

class SymbolIconEngine : public QIconEngine
{
public:
    SymbolIconEngine(QByteArray drawing, const QWidget* surface) : m_drawing(std::move(drawing)), m_surface(surface) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QSvgRenderer renderer(Colored(ColorsOf(Palette(), mode)));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SymbolIconEngine(*this); }

private:
    QPalette Palette() const { return m_surface ? m_surface->palette() : QGuiApplication::palette(); }

    QByteArray Colored(const SymbolColors& colors) const
    {
        QByteArray drawing = m_drawing;
        drawing.replace("currentColor", colors.text.name().toLatin1());
        return drawing.replace(kSymbolAccent, colors.accent.name().toLatin1());
    }

    QByteArray m_drawing;
    QPointer<const QWidget> m_surface;
};

} // namespace

QIcon SymbolIcon(const QString& file, const QWidget* surface)
{
    QFile drawing(file);
    if (file.isEmpty() || !drawing.open(QFile::ReadOnly))
        return {};
    return QIcon(new SymbolIconEngine(drawing.readAll(), surface));
}

} // namespace schedules
