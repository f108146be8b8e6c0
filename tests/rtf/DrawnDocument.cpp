#include "rtf/DrawnDocument.h"

#include "rtf/RtfReader.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

namespace schedules::rtf {

namespace {

QString Number(qreal number)
{
    return QString::number(number, 'g', 4);
}

QString NameOf(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignJustify)
        return QStringLiteral("justify");
    if (alignment & Qt::AlignHCenter)
        return QStringLiteral("centre");
    return alignment & Qt::AlignRight ? QStringLiteral("right") : QStringLiteral("left");
}

QString Drawn(const QList<QTextOption::Tab>& tabs)
{
    QStringList drawn;
    for (const QTextOption::Tab& tab : tabs)
        drawn << Number(tab.position) + QStringLiteral("LRCD").at(tab.type);
    return drawn.join(',');
}

QStringList Properties(const QTextBlockFormat& format)
{
    QStringList drawn;
    if (format.hasProperty(QTextFormat::BlockAlignment))
        drawn << NameOf(format.alignment());
    if (format.layoutDirection() != Qt::LayoutDirectionAuto)
        drawn << (format.layoutDirection() == Qt::RightToLeft ? "rtl" : "ltr");
    const std::pair<const char*, qreal> lengths[]{{"li", format.leftMargin()},
                                                  {"ri", format.rightMargin()},
                                                  {"fi", format.textIndent()},
                                                  {"sb", format.topMargin()},
                                                  {"sa", format.bottomMargin()}};
    for (const auto& [name, length] : lengths) {
        if (length != 0)
            drawn << QLatin1String(name) + '=' + Number(length);
    }
    if (!format.tabPositions().isEmpty())
        drawn << "tabs=" + Drawn(format.tabPositions());
    return drawn;
}

QStringList Flags(const QTextCharFormat& format)
{
    const std::pair<const char*, bool> flags[]{
        {"b", format.fontWeight() == QFont::Bold},
        {"i", format.fontItalic()},
        {"u", format.fontUnderline()},
        {"s", format.fontStrikeOut()},
        {"caps", format.fontCapitalization() == QFont::AllUppercase},
        {"smallcaps", format.fontCapitalization() == QFont::SmallCaps},
        {"super", format.verticalAlignment() == QTextCharFormat::AlignSuperScript},
        {"sub", format.verticalAlignment() == QTextCharFormat::AlignSubScript},
        {"LINK", format.isAnchor()},
        {"OBJECT", format.objectType() != QTextFormat::NoObject},
    };
    QStringList drawn;
    for (const auto& [name, isSet] : flags) {
        if (isSet)
            drawn << QLatin1String(name);
    }
    return drawn;
}

QStringList Properties(const QTextCharFormat& format)
{
    QStringList drawn = Flags(format);
    if (format.hasProperty(QTextFormat::FontFamilies))
        drawn << "font=" + format.fontFamilies().toStringList().join('/');
    if (format.hasProperty(QTextFormat::FontPointSize))
        drawn << "size=" + Number(format.fontPointSize());
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        drawn << "colour=" + format.foreground().color().name();
    if (format.hasProperty(QTextFormat::BackgroundBrush))
        drawn << "back=" + format.background().color().name();
    return drawn;
}

QString Drawn(const QTextBlock& block)
{
    const QStringList properties = Properties(block.blockFormat());
    QString drawn = properties.isEmpty() ? QString() : '<' + properties.join(' ') + "> ";
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QStringList look = Properties(at.fragment().charFormat());
        const QString text = at.fragment().text().replace('\t', u'\u2192').replace(QChar::LineSeparator, u'\u21B5');
        drawn += look.isEmpty() ? text : '[' + look.join(' ') + ']' + text + "[/]";
    }
    return drawn;
}

} // namespace

std::string Drawn(const QTextDocument& document)
{
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        lines << Drawn(block);
    return lines.join('\n').toStdString();
}

std::string DrawnMessage(const QString& message)
{
    QTextDocument document;
    ReadRichText(message, document);
    return Drawn(document);
}

std::string Shown(const QString& body)
{
    return DrawnMessage("{\\rtf1 " + body + '}');
}

} // namespace schedules::rtf
