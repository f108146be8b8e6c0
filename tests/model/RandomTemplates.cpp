#include "model/RandomTemplates.h"

#include "model/ModelDrawing.h"

#include <algorithm>
#include <array>

namespace schedules::testing {

namespace {

const QString kBlank = " ";

QString TrimmedOfSpaces(QString text)
{
    while (text.startsWith(kBlank))
        text.remove(0, 1);
    while (text.endsWith(kBlank))
        text.chop(1);
    return text;
}

bool IsWhite(const QString& text)
{
    return std::ranges::all_of(text, [](QChar character) { return QString(" \t\r\n").contains(character); });
}

} // namespace

int RandomTemplates::UpTo(int most)
{
    return std::uniform_int_distribution(0, most)(m_random);
}

QString RandomTemplates::Character()
{
    static constexpr std::array kCharacters{"a",      "B",      "7",    " ",      " ",      "\t",         "\n",
                                            "\r",     "<",      ">",    "&",      "\"",     "'",          "]]>",
                                            "]",      "--",     "<!--", "&amp;",  "\u0085", "\u00A0",     "ä",
                                            "Ж",      "ж",      "水",   "\u2028", "\uD7FF", "\uE000",     "\uFEFF",
                                            "\uFFFD", "\u007F", "ﬀ",    "𝄞",      "𐐀",      "\U0001FFFE", "\U0010FFFF"};
    return kCharacters[static_cast<std::size_t>(UpTo(kCharacters.size() - 1))];
}

QString RandomTemplates::Text()
{
    QString text;
    for (int left = UpTo(Chance(5) ? 200 : 8); left > 0; --left)
        text += Character();
    return text;
}

QString RandomTemplates::MemberName()
{
    if (Chance(60))
        return QString(UpTo(1), ' ') + (Chance(50) ? "Pump " : "PUMP ") + QString::number(UpTo(5));
    return Text() + 'x' + Text();
}

/// With the name first, if there is one: of names that differ in case alone the first is kept, and that must be it.
RandomTemplates::Attributes RandomTemplates::NewAttributes(const QString& memberName)
{
    static constexpr std::array kNames{"name", "NAME",     "DisplayName", "displayname", "a",     "A",     "_x-y.z",
                                       "имя",  "Имя",      "Größe",       "水",          "ID",    "Value", "Category",
                                       "B",    "xml:lang", "xml:space",   "p:a",         "p:Name"};
    Attributes attributes;
    if (!memberName.isNull())
        attributes.push_back({"Name", memberName});
    for (int left = UpTo(5); left > 0; --left) {
        const QString name = kNames[static_cast<std::size_t>(UpTo(kNames.size() - 1))];
        const bool isKnown =
            std::ranges::any_of(attributes, [&](const Attribute& known) { return known.name == name; });
        if (!isKnown && (m_hasPrefix || !name.startsWith("p:")))
            attributes.push_back({name, Text()});
    }
    return attributes;
}

void RandomTemplates::AddDeclaration(Attributes& attributes)
{
    const Attribute declaration{"xmlns:p", Chance(50) ? "urn:u" : "http://example.com/?a=1&b=2"};
    attributes.insert(attributes.begin() + UpTo(static_cast<int>(attributes.size())), declaration);
}

QString RandomTemplates::Escaped(const QString& text, QChar quote)
{
    QString escaped;
    for (const uint character : text.toUcs4()) {
        const bool mustBe =
            character < ' ' || character == '<' || character == '&' || character == '>' || character == quote.unicode();
        if (mustBe || Chance(5))
            escaped += Chance(50) ? QString("&#%1;").arg(character) : QString("&#x%1;").arg(character, 0, 16);
        else
            escaped += QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
    }
    return escaped;
}

QString RandomTemplates::Written(const Attributes& attributes)
{
    QString written;
    for (const Attribute& attribute : attributes) {
        const QChar quote = Chance(50) ? '\'' : '"';
        written += Chance(80) ? " " : "\n\t";
        written += attribute.name + (Chance(80) ? "=" : " = ") + quote + Escaped(attribute.value, quote) + quote;
    }
    return written + (Chance(80) ? "" : " ");
}

QString RandomTemplates::WrittenLocation(const QString& location)
{
    if (location.isEmpty())
        return Chance(50) ? "" : "<Location/>";
    const bool canBeCData = !location.contains("]]>") && !location.contains('\r') && !IsWhite(location);
    const QString content = canBeCData && Chance(30) ? "<![CDATA[" + location + "]]>" : Escaped(location, '<');
    return "<Location>" + content + "</Location>";
}

/// What may stand between elements and means nothing.
QString RandomTemplates::Between()
{
    static constexpr std::array kNothing{"",
                                         "",
                                         "",
                                         "\n  ",
                                         "<!-- <Group/> -->",
                                         "<?i <Item/>?>",
                                         "text",
                                         "<x Name='1'><Item/></x>",
                                         "<![CDATA[<Item/>]]>"};
    return kNothing[static_cast<std::size_t>(UpTo(kNothing.size() - 1))];
}

/// Of names that differ in case alone, the first.
QString RandomTemplates::Drawn(const Attributes& attributes)
{
    QStringList drawn;
    std::set<QString> taken;
    for (const Attribute& attribute : attributes) {
        if (taken.insert(attribute.name.toLower()).second)
            drawn += Visible(attribute.name + "='" + attribute.value + '\'');
    }
    return drawn.join(' ');
}

void RandomTemplates::WriteItem(RandomTemplate& target, QString& drawn, int& count, std::set<QString>& taken)
{
    const QString name = MemberName();
    const Attributes attributes = NewAttributes(name);
    const QString location = Text();
    target.xml += "<Item" + Written(attributes) + '>' + WrittenLocation(location) + Between() + "</Item>";
    const QString key = TrimmedOfSpaces(name);
    if (!taken.insert(key.toLower()).second)
        return;
    drawn += QString("    %1 ").arg(++count) + Visible(key) + ": " + Drawn(attributes) + " -> ";
    drawn += Visible(IsWhite(location) ? QString() : TrimmedOfSpaces(location)) + '\n';
}

void RandomTemplates::WriteGroup(RandomTemplate& target, int& count, std::set<QString>& taken)
{
    const QString name = MemberName();
    Attributes attributes = NewAttributes(name);
    if (Chance(5))
        AddDeclaration(attributes);
    target.xml += "<Group" + Written(attributes) + '>' + Between();
    QString items;
    int itemCount = 0;
    std::set<QString> itemsTaken;
    for (int left = UpTo(4); left > 0; --left) {
        WriteItem(target, items, itemCount, itemsTaken);
        target.xml += Between();
    }
    target.xml += "</Group>";
    const QString key = TrimmedOfSpaces(name);
    if (!taken.insert(key.toLower()).second)
        return;
    target.drawn += QString("  %1 ").arg(++count) + Visible(key) + ": " + Drawn(attributes) + '\n' + items;
}

RandomTemplate RandomTemplates::Next()
{
    RandomTemplate target;
    m_hasPrefix = Chance(30);
    Attributes attributes = NewAttributes({});
    if (m_hasPrefix)
        AddDeclaration(attributes);
    const bool isRoot = Chance(80);
    target.xml = QString(Chance(50) ? "<?xml version='1.0'?>\n" : "") + (isRoot ? "" : "<Root>");
    target.xml += "<Template" + Written(attributes) + '>' + Between();
    target.drawn = Drawn(attributes) + '\n';
    int count = 0;
    std::set<QString> taken;
    for (int left = UpTo(4); left > 0; --left) {
        WriteGroup(target, count, taken);
        target.xml += Between();
    }
    target.xml += QString("</Template>") + (isRoot ? "\n" : "<Template><Group/></Template></Root>");
    return target;
}

} // namespace schedules::testing
