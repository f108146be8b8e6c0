#include "common/CResEnum.h"
#include "common/CompiledTable.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"

#include <QDirIterator>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <vector>

using namespace schedules;
using namespace schedules::testing;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace {

const QString kSourceFolder = QStringLiteral(SCHEDULES_SOURCE_DIR);
const QStringList kLanguages = {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr")};

QString FileText(const QString& path)
{
    QFile file(kSourceFolder + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

struct Entry
{
    int number = 0;
    QString source;
    QString translation;
    bool isFinished = true;

    std::string Drawn() const { return QStringLiteral("%1 %2").arg(number).arg(translation).toStdString(); }
};

struct Table
{
    QString language;
    std::vector<Entry> entries;
};

/// The editable form of a table.
Table ReadTable(const QString& path)
{
    Table table;
    QXmlStreamReader xml(FileText(path));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("TS"))
            table.language = xml.attributes().value(QLatin1String("language")).toString();
        else if (xml.name() == QLatin1String("message"))
            table.entries.push_back({xml.attributes().value(QLatin1String("id")).toInt(), {}, {}});
        else if (xml.name() == QLatin1String("source"))
            table.entries.back().source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            table.entries.back().isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            table.entries.back().translation = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return table;
}

Table Strings(const QString& language)
{
    return ReadTable(QStringLiteral("/resources/strings_%1.ts").arg(language));
}

Table ComponentStrings(const QString& language)
{
    return ReadTable(QStringLiteral("/resources/component_%1.ts").arg(language));
}

std::vector<int> Numbers(const Table& table)
{
    std::vector<int> numbers;
    for (const Entry& entry : table.entries)
        numbers.push_back(entry.number);
    return numbers;
}

/// What a pattern's first group matches in a text, all over.
QStringList Matches(const char* pattern, const QString& text)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

std::set<int> NumbersThatCodeNames()
{
    std::set<int> numbers;
    for (const QString& number : Matches("\\bk\\w+ = (\\d+)", FileText(QStringLiteral("/src/common/StringNumbers.h"))))
        numbers.insert(number.toInt());
    return numbers;
}

/// The enumerations that are tables of keys, all but that of the view types.
std::vector<QMetaEnum> KeyTables()
{
    return {QMetaEnum::fromType<CResEnum::ectlSchedOptions>(), QMetaEnum::fromType<CResEnum::efrmSaveAs>(),
            QMetaEnum::fromType<CResEnum::ectlSchedule>()};
}

std::set<int> NumbersOfKeys(QLatin1String ending)
{
    std::set<int> numbers;
    for (const QMetaEnum& keys : KeyTables())
        for (int i = 0; i < keys.keyCount(); ++i)
            if (QLatin1String(keys.key(i)).endsWith(ending))
                numbers.insert(keys.value(i));
    return numbers;
}

/// Texts that may have an access key: captions that are nothing else besides.
std::set<int> NumbersOfCaptions()
{
    std::set<int> captions = NumbersOfKeys(QLatin1String("_CAPTION"));
    for (int number : NumbersThatCodeNames())
        captions.erase(number);
    captions.insert(kCloseCaption);
    return captions;
}

QStringList SourceTexts()
{
    QStringList texts;
    for (const char* folder : {"/src", "/host"}) {
        QDirIterator files(kSourceFolder + QLatin1String(folder), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            texts << FileText(files.next().mid(kSourceFolder.size()));
    }
    return texts;
}

std::set<QString> SourcesOf(const Table& table)
{
    std::set<QString> sources;
    for (const Entry& entry : table.entries)
        sources.insert(entry.source);
    return sources;
}

QChar AccessKey(const QString& text)
{
    const qsizetype mark = text.indexOf(QLatin1Char('&'));
    return mark < 0 || mark + 1 == text.size() ? QChar() : text[mark + 1].toLower();
}

/// The keys that two captions of one form share.
QString SharedAccessKeys(const QMetaEnum& form, const Table& table)
{
    QString shared;
    QString seen;
    for (const Entry& entry : table.entries) {
        const QChar key = AccessKey(entry.translation);
        if (key.isNull() || !form.valueToKey(entry.number))
            continue;
        if (seen.contains(key))
            shared += key;
        seen += key;
    }
    return shared;
}

class StringTable : public ::testing::TestWithParam<QString>
{
protected:
    const Table m_table = Strings(GetParam());
};

class ComponentTable : public ::testing::TestWithParam<QString>
{
protected:
    const Table m_table = ComponentStrings(GetParam());
};

std::string LanguageName(const ::testing::TestParamInfo<QString>& info)
{
    return info.param.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, StringTable, ::testing::ValuesIn(kLanguages), LanguageName);
INSTANTIATE_TEST_SUITE_P(Languages, ComponentTable, ::testing::ValuesIn(kLanguages.mid(1)), LanguageName);

} // namespace

TEST_P(StringTable, DeclaresItsLanguage)
{
    EXPECT_EQ(m_table.language.left(3), GetParam() + QLatin1Char('_'));
}

TEST_P(StringTable, HasEveryNumberThatCodeOrAKeyNamesOnceInOrderAndNoOther)
{
    std::set<int> needed = NumbersThatCodeNames();
    needed.merge(NumbersOfKeys(QLatin1String()));
    EXPECT_THAT(Numbers(m_table), ElementsAreArray(needed));
}

TEST_P(StringTable, HasOnlyFinishedTranslationsOfTheEnglishTexts)
{
    const Table english = Strings(QStringLiteral("en"));
    ASSERT_EQ(m_table.entries.size(), english.entries.size());
    for (std::size_t i = 0; i < english.entries.size(); ++i) {
        const Entry& entry = m_table.entries[i];
        EXPECT_TRUE(entry.isFinished) << entry.Drawn();
        EXPECT_FALSE(entry.translation.isEmpty()) << entry.Drawn();
        EXPECT_EQ(entry.translation, entry.translation.trimmed()) << entry.Drawn();
        EXPECT_EQ(entry.source, english.entries[i].translation) << entry.Drawn();
    }
}

TEST_P(StringTable, IsCompiledWhole)
{
    const ModuleInUse module(LanguageFile(GetParam()));
    ASSERT_GT(module.Handle(), 0) << LanguageFile(GetParam()).toStdString();
    for (const Entry& entry : m_table.entries)
        EXPECT_EQ(LoadResString(entry.number), entry.translation) << entry.Drawn();
}

TEST_P(StringTable, HasAccessKeysInCaptionsAlone)
{
    const std::set<int> captions = NumbersOfCaptions();
    for (const Entry& entry : m_table.entries) {
        const auto marks = entry.translation.count(QLatin1Char('&'));
        EXPECT_LE(marks, captions.contains(entry.number) ? 1 : 0) << entry.Drawn();
        EXPECT_EQ(AccessKey(entry.translation).isLetter(), marks > 0) << entry.Drawn();
    }
}

TEST_P(StringTable, SharesNoAccessKeyWithinAForm)
{
    for (const QMetaEnum& form : KeyTables())
        EXPECT_EQ(SharedAccessKeys(form, m_table), QString()) << form.name();
}

TEST_P(StringTable, HasNoPlaceholdersSinceTextsAreJoined)
{
    for (const Entry& entry : m_table.entries)
        EXPECT_FALSE(entry.translation.contains(QLatin1Char('%'))) << entry.Drawn();
}

TEST_P(StringTable, HasADefaultTitleThatCanNameASheet)
{
    const ModuleInUse module(LanguageFile(GetParam()));
    EXPECT_LE(LoadResString(kDefaultTitle).size(), 31);
}

TEST(StringNumbers, AreLoadedByNameAlone)
{
    for (const QString& text : SourceTexts())
        EXPECT_THAT(Matches("(LoadResString\\(\\s*\\d+)", text), IsEmpty());
}

TEST_P(ComponentTable, DeclaresItsLanguage)
{
    EXPECT_EQ(m_table.language.left(3), GetParam() + QLatin1Char('_'));
}

TEST_P(ComponentTable, TranslatesTheSameTextsAsTheOtherLanguages)
{
    EXPECT_EQ(SourcesOf(m_table), SourcesOf(ComponentStrings(QStringLiteral("de"))));
    EXPECT_EQ(SourcesOf(m_table).size(), m_table.entries.size());
}

TEST_P(ComponentTable, HasEveryTextThatCodeAsksFor)
{
    const std::set<QString> sources = SourcesOf(m_table);
    for (const QString& text : SourceTexts()) {
        for (const QString& source : Matches(R"x((?:ComponentText\(|NOOP\("Schedules",)\s*"((?:[^"\\]|\\.)*)")x", text))
            EXPECT_TRUE(sources.contains(source)) << source.toStdString();
    }
}

TEST_P(ComponentTable, TellsItsLanguage)
{
    EXPECT_EQ(ResourceLanguage(), QString());
    const ModuleInUse module(LanguageFile(GetParam()));
    EXPECT_EQ(ResourceLanguage(), GetParam());
}

TEST_P(ComponentTable, IsFinishedAndBuiltIn)
{
    const ModuleInUse module(LanguageFile(GetParam()));
    for (const Entry& entry : m_table.entries) {
        EXPECT_TRUE(entry.isFinished) << entry.source.toStdString();
        EXPECT_FALSE(entry.translation.isEmpty()) << entry.source.toStdString();
        EXPECT_EQ(ComponentText(entry.source.toUtf8().constData()), entry.translation);
    }
}
