#include "grid/RandomTables.h"

#include <QRegularExpression>

#include <array>

namespace schedules::testing {

namespace {

constexpr int kDeepest = 7;

constexpr std::array kRoots{"TABLE", "SCHEDULE", "TR", "x", "TD"};
constexpr std::array kInTable{"TR", "TR", "TR", "TR", "TR", "TH", "TABLE", "x"};
constexpr std::array kInRow{"TH", "TD", "TD", "TD", "TD", "TD", "TD", "TR", "td", "TABLE"};
constexpr std::array kElsewhere{"TABLE", "TABLE", "TR", "TD", "TH", "x"};
constexpr std::array kOddNames{"p:TR", "p:TD", "p:TH", "p:TABLE", "Tr", "th", "TH-2", "_"};
constexpr std::array kNames{"hidden",      "fontBold",  "bgColor", "dataType", "visible",
                            "UserDefined", "AllowEdit", "Hidden",  "other"};
constexpr std::array kOddAttributes{"p:hidden=\"-1\"", "p:dataType='CHECKBOX'", "xml:space=\"preserve\"",
                                    "xmlns=\"\"",      "xmlns=\"urn:other\"",   "xmlns:q='urn:q'"};
constexpr std::array kValues{"-1",       "-1",       "-1",       "0",          "1",          " -1", "",
                             "255",      "255",      " 12 ",     "-5",         "2147483663", "x",   "4294967296",
                             "CHECKBOX", "CHECKBOX", "checkBox", " CheckBox ", "DOUBLE",     "3",   "-2147483633"};
constexpr std::array kTexts{"P-101A", "12.5", "Насос", "水", "a&amp;b", "x &lt; y", "0", "  spaced  ", "&#65;", "ﷲ"};
constexpr std::array kBlanks{" ", "\n  ", "\t", "&#32;", ""};
constexpr std::array kBetween{"<!-- note -->", "<?pi data?>", "<![CDATA[raw]]>",      "<![CDATA[]]>",
                              "<![CDATA[ ]]>", "loose",       "<!--<TR><TH/></TR>-->"};

} // namespace

QString RandomTables::Next()
{
    m_plain = Chance(40);
    const QString prolog = Chance(20) ? QStringLiteral("<?xml version=\"1.0\"?>\n") : QString();
    const QString note = !m_plain && Chance(10) ? QStringLiteral("<!-- TABLE -->") : QString();
    QString root = Element(OneOf(kRoots), 0);
    if (!m_plain)
        root.replace(root.indexOf(QRegularExpression(QStringLiteral("[ />]"))), 0,
                     QStringLiteral(" xmlns:p=\"urn:p\""));
    return prolog + note + root + (Chance(10) ? QStringLiteral("\n") : QString());
}

bool RandomTables::Chance(int percent)
{
    return UpTo(99) < percent;
}

int RandomTables::UpTo(int most)
{
    return static_cast<int>(m_random() % static_cast<unsigned>(most + 1));
}

QString RandomTables::OneOf(Choices choices)
{
    return QString::fromUtf8(choices[static_cast<std::size_t>(UpTo(static_cast<int>(choices.size()) - 1))]);
}

QString RandomTables::Element(const QString& name, int depth)
{
    const QString start = u'<' + name + Attributes();
    const QString content = Content(name, depth);
    if (content.isEmpty() && Chance(50))
        return start + QStringLiteral("/>");
    return start + u'>' + content + QStringLiteral("</") + name + u'>';
}

QString RandomTables::ChildName(const QString& parent)
{
    if (!m_plain && Chance(6))
        return OneOf(kOddNames);
    if (parent == QLatin1String("TABLE"))
        return OneOf(kInTable);
    return parent == QLatin1String("TR") ? OneOf(kInRow) : OneOf(kElsewhere);
}

QString RandomTables::Content(const QString& parent, int depth)
{
    const bool isContainer = depth < 2 || parent == QLatin1String("TABLE") || parent == QLatin1String("TR");
    const int most = depth >= kDeepest ? 0 : isContainer ? 4 : Chance(20) ? 2 : 0;
    QString content = isContainer ? QString() : Text();
    for (int children = UpTo(most); children > 0; --children) {
        content += OneOf(kBlanks);
        content += Between();
        content += Element(ChildName(parent), depth + 1);
        content += Chance(20) ? Text() : QString();
    }
    return content + Between();
}

QString RandomTables::Attributes()
{
    QString attributes;
    for (const char* name : kNames) {
        if (Chance(18))
            attributes += QStringLiteral(" %1=\"%2\"").arg(QLatin1String(name), OneOf(kValues));
    }
    if (!m_plain && Chance(6))
        attributes += u' ' + OneOf(kOddAttributes);
    return attributes;
}

QString RandomTables::Text()
{
    QString text;
    while (Chance(70))
        text += Chance(70) ? OneOf(kTexts) : OneOf(kBlanks);
    return text;
}

QString RandomTables::Between()
{
    return m_plain || !Chance(12) ? QString() : OneOf(kBetween) + OneOf(kBlanks);
}

} // namespace schedules::testing
