#include "controls/paper/SheetPrinterFonts.h"

#include "common/Error.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr int kMeasuredPixels = 1000;
constexpr double kSmallestShare = 0.8;
constexpr double kTwipsPerPoint = 20;
constexpr double kPointsPerPixel = 0.75;

QString Arial()
{
    return QStringLiteral("Arial");
}

/// Families whose characters are as wide as those of another, best first.
QStringList SameWidths(const QString& family)
{
    if (family.compare(Arial(), Qt::CaseInsensitive) == 0)
        return {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Nimbus Sans"),
                QStringLiteral("Helvetica")};
    if (family.compare(QLatin1String("Times New Roman"), Qt::CaseInsensitive) == 0)
        return {QStringLiteral("Liberation Serif"), QStringLiteral("Tinos")};
    if (family.compare(QLatin1String("Courier New"), Qt::CaseInsensitive) == 0)
        return {QStringLiteral("Liberation Mono"), QStringLiteral("Cousine")};
    return {};
}

/// How wide ordinary texts are.
double SampleWidth(QFont font)
{
    font.setPixelSize(kMeasuredPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QFontMetricsF(font).horizontalAdvance(
        QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 .,-/()"));
}

/// The families, without the makers in whose name some are listed: "Arial [Monotype]".
QStringList InstalledFamilies()
{
    // Names of general families are listed even where there is no font; then the toolkit draws boxes of no family.
    if (QFontInfo(QFont(Arial())).family().isEmpty())
        return {};
    QStringList families = QFontDatabase::families();
    for (QString& family : families)
        family = family.section(QStringLiteral(" ["), 0, 0);
    return families;
}

double PointsOf(const QFont& font)
{
    return font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * kPointsPerPixel;
}

} // namespace

QString PrintFamily(const QString& wanted, const QStringList& installed)
{
    if (installed.isEmpty())
        throw Error(kUnexpectedError, QStringLiteral("There is no font to print with."));
    for (const QString& family : QStringList{wanted} + SameWidths(wanted) + QStringList{Arial()} + SameWidths(Arial()))
    {
        if (installed.contains(family, Qt::CaseInsensitive))
            return family;
    }
    return installed.front();
}

QString PrintFamily(const QString& wanted)
{
    return PrintFamily(wanted, InstalledFamilies());
}

QFont PrintedCellFont(const QFont& sheetFont)
{
    QFont font(sheetFont);
    font.setFamilies({PrintFamily(Arial())});
    const double share = std::min(SampleWidth(sheetFont) / SampleWidth(font), 1.0);
    if (share < kSmallestShare)
        return sheetFont;
    // Whole twips are whole units of the printed page.
    font.setPointSizeF(std::floor(PointsOf(sheetFont) * share * kTwipsPerPoint) / kTwipsPerPoint);
    return font;
}

} // namespace schedules
