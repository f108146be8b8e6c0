// Template files that are cut off, hostile, huge, or no files at all.

#include "model/TemplatesFolder.h"
#include "support/BadXml.h"
#include "support/OrdinaryUser.h"
#include "support/ProcessorTime.h"

#include <sys/stat.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr qint64 kMostBytes = 64 * 1024 * 1024;

/// Something of everything that a template can have.
const QString kSample = "<?xml version=\"1.0\"?><!-- Ж --><Template xmlns:p='u' a='&lt;1' p:b=\"水\"><?i x?>\n"
                        "<Group Name='Größe'><Item Name='&#x416;'><Location>a&amp;<![CDATA[<b>]]>𝄞</Location></Item>"
                        "<Item Name='2'/></Group></Template>";

QByteArray Utf16(const QString& text)
{
    return "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

QByteArray File(const QString& name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// Elements of that name around a template.
QByteArray Around(int levels, const char* content = "<Template/>")
{
    return QByteArray("<a>").repeated(levels) + content + QByteArray("</a>").repeated(levels);
}

/// A template of so many items "i1", "i2", ...
QByteArray Itemised(int count, const char* last = "")
{
    QByteArray xml = "<Template><Group Name='A'>";
    for (int number = 1; number <= count; ++number)
        xml += "<Item Name='i" + QByteArray::number(number) + "'/>";
    return xml + last + "</Group></Template>";
}

/// A template of so many attributes, and what else.
QByteArray TemplateWith(int count, const char* last)
{
    QByteArray xml = "<Template";
    for (int number = 1; number <= count; ++number)
        xml += " a" + QByteArray::number(number) + "=\"" + QByteArray::number(number) + '"';
    return xml + last + "/>";
}

/// How many bytes this process has read so far, of files and whatever else.
qint64 BytesRead()
{
    const QByteArray counts = File("/proc/self/io");
    EXPECT_TRUE(counts.startsWith("rchar: "));
    return counts.mid(7, counts.indexOf('\n') - 7).toLongLong();
}

struct TemplateBadInput : TemplateFixture
{
    TemplateBadInput() { ReadFormer(); }

    /// Whether reading it fails without a word, and the model stays as it was.
    bool IsRefused(const QByteArray& file) { return !Read(file) && IsUntouched(); }
    bool IsRefused() { return !model.XMLToObject() && IsUntouched(); }
    bool IsUntouched() const { return HasFormer() && user.boxes.empty(); }
};

struct TemplateBadXml : TemplateBadInput, ::testing::WithParamInterface<BadXml>
{
};

} // namespace

TEST_F(TemplateBadInput, AFileThatIsCutOffAnywhereIsRefused)
{
    const QByteArray whole = kSample.toUtf8();
    for (qsizetype size = 0; size < whole.size(); ++size)
        ASSERT_TRUE(IsRefused(whole.first(size))) << size;
    EXPECT_TRUE(Read(whole));
}

TEST_F(TemplateBadInput, AUtf16FileThatIsCutOffAnywhereIsRefused)
{
    const QByteArray whole = Utf16(kSample);
    for (qsizetype size = 0; size < whole.size(); ++size)
        ASSERT_TRUE(IsRefused(whole.first(size))) << size;
    EXPECT_TRUE(Read(whole));
}

TEST_F(TemplateBadInput, ASampleThatIsCutOffAnywhereIsRefused)
{
    const QByteArray whole = File(SCHEDULES_SOURCE_DIR "/samples/templates/AirHandlers-EL.xml").trimmed();
    for (qsizetype size = 0; size < whole.size(); ++size)
        ASSERT_TRUE(IsRefused(whole.first(size))) << size;
    EXPECT_TRUE(Read(whole));
}

TEST_F(TemplateBadInput, ReadingChangesNoFile)
{
    for (const QString& xml : {kSample, kSample.chopped(1), QString("<Template><Group/></Template>")}) {
        Read(xml.toUtf8());
        EXPECT_EQ(folder.Content("t.xml"), xml.toUtf8());
    }
}

TEST_F(TemplateBadInput, AFileThatIsMissingIsRefused)
{
    model.SetFilename("missing.xml");
    EXPECT_TRUE(IsRefused());
    model.SetFilePath(folder.Path() + "/missing");
    EXPECT_TRUE(IsRefused());
}

TEST_F(TemplateBadInput, AFolderInThePlaceOfTheFileIsRefused)
{
    model.SetFilename(".");
    EXPECT_TRUE(IsRefused());
    ASSERT_EQ(::mkdir(qPrintable(folder.Path("folder.xml")), 0755), 0);
    model.SetFilename("folder.xml");
    EXPECT_TRUE(IsRefused());
}

TEST_F(TemplateBadInput, APipeInThePlaceOfTheFileIsRefusedAtOnce)
{
    ASSERT_EQ(::mkfifo(qPrintable(folder.Path("pipe.xml")), 0644), 0);
    model.SetFilename("pipe.xml");
    EXPECT_TRUE(IsRefused());
}

TEST_F(TemplateBadInput, ADeviceInThePlaceOfTheFileIsRefusedAtOnce)
{
    model.SetFilePath("/dev");
    for (const char* device : {"zero", "null"}) {
        model.SetFilename(device);
        EXPECT_TRUE(IsRefused()) << device;
    }
}

TEST_F(TemplateBadInput, AFileThatMayNotBeReadIsRefused)
{
    folder.Write("secret.xml", "<Template/>");
    ASSERT_EQ(::chmod(qPrintable(folder.Path("secret.xml")), 0), 0);
    model.SetFilename("secret.xml");
    const OrdinaryUser reader;
    EXPECT_TRUE(IsRefused());
}

TEST_F(TemplateBadInput, LinksAreFollowedUnlessTheyLeadNowhereOrInACircle)
{
    const auto link = [this](const char* target, const char* name) {
        ASSERT_EQ(::symlink(target, qPrintable(folder.Path(name))), 0);
        model.SetFilename(name);
    };
    link("nowhere.xml", "broken.xml");
    EXPECT_TRUE(IsRefused());
    link("circle.xml", "circle.xml");
    EXPECT_TRUE(IsRefused());
    folder.Write("real.xml", "<Template/>");
    link("real.xml", "link.xml");
    EXPECT_TRUE(model.XMLToObject());
}

TEST_F(TemplateBadInput, AFileOver64MiBIsRefusedWithoutBeingRead)
{
    for (const qint64 size : {kMostBytes + 1, 2 * kMostBytes, qint64(1) << 40}) {
        folder.WriteSparse("huge.xml", size);
        model.SetFilename("huge.xml");
        const qint64 before = BytesRead();
        EXPECT_TRUE(IsRefused());
        EXPECT_LT(BytesRead() - before, 100'000) << size;
    }
}

TEST_F(TemplateBadInput, AFileOf64MiBIsReadAndOneOfAByteMoreIsRefused)
{
    const QByteArray xml = "<Template x='1'/>";
    const QByteArray largest = xml + QByteArray(kMostBytes - xml.size(), ' ');
    EXPECT_TRUE(IsRefused(largest + ' '));
    EXPECT_EQ(DrawnFrom(largest), "x='1'\n");
}

TEST_F(TemplateBadInput, NullsAreRefused)
{
    folder.WriteSparse("t.xml", 1'000'000);
    EXPECT_TRUE(IsRefused());
    EXPECT_TRUE(IsRefused(QByteArray("<Template/>") + '\0'));
    EXPECT_TRUE(IsRefused(QByteArray("<Template>") + '\0' + "</Template>"));
}

TEST_F(TemplateBadInput, DocumentTypesAreRefused)
{
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template><Template/>"));
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template []><Template/>"));
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template [<!ATTLIST Template a CDATA 'added'>]><Template/>"));
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template SYSTEM 't.dtd'><Template/>"));
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template [<!ENTITY e 'x'>]><Template a='&e;'/>"));
}

TEST_F(TemplateBadInput, NothingOutsideOfTheFileIsRead)
{
    folder.Write("outside.txt", "secret");
    const QByteArray outside = folder.Path("outside.txt").toUtf8();
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template [<!ENTITY e SYSTEM 'file://" + outside +
                          "'>]><Template><Group Name='A'><Item Name='I'><Location>&e;</Location></Item></Group>"
                          "</Template>"));
    EXPECT_TRUE(IsRefused("<!DOCTYPE Template [<!ENTITY % p SYSTEM 'file://" + outside + "'>%p;]><Template/>"));
    EXPECT_EQ(DrawnFrom("<Template xmlns:xi='http://www.w3.org/2001/XInclude'><xi:include href='outside.txt' "
                        "parse='text'/></Template>"),
              "xmlns:xi='http://www.w3.org/2001/XInclude'\n");
}

TEST_F(TemplateBadInput, AnEntityBombIsRefused)
{
    // Whoever unfolds it never ends.
    QByteArray bomb = "<!DOCTYPE Template [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int level = 1; level < 30; ++level)
        bomb += QString("<!ENTITY e%1 '%2'>").arg(level).arg(QString("&e%1;").arg(level - 1).repeated(10)).toUtf8();
    bomb += "]><Template a='&e29;'><Group Name='&e29;'/></Template>";
    EXPECT_TRUE(IsRefused(bomb));
}

TEST_F(TemplateBadInput, TwoHundredFiftySixLevelsAreReadAndOneMoreIsNot)
{
    EXPECT_TRUE(IsRefused(Around(257)));
    EXPECT_TRUE(IsRefused("<Template>" + Around(256, "<x/>") + "</Template>"));
    EXPECT_TRUE(Read(Around(256)));
    EXPECT_TRUE(Read("<Template>" + Around(255, "<x/>") + "</Template>"));
}

TEST_F(TemplateBadInput, AHundredThousandLevelsAreRefusedInLinearTime)
{
    const auto refuse = [this](int levels) {
        EXPECT_TRUE(IsRefused(Around(levels)));
        EXPECT_TRUE(IsRefused(QByteArray("<Template>").repeated(levels)));
        EXPECT_TRUE(IsRefused(QByteArray("<Template><Group Name='A'>").repeated(levels / 2)));
    };
    EXPECT_LT(CostOfFourTimes(25'000, refuse), kLinear);
}

TEST_F(TemplateBadInput, ItemsAreReadWrittenAndDroppedInLinearTime)
{
    EXPECT_LT(CostOfFourTimes(5'000, [this](int count) { EXPECT_TRUE(Read(Itemised(count))); }), kLinear);
    const auto readAndWrite = [this](int count) {
        EXPECT_TRUE(Read(Itemised(count)));
        EXPECT_EQ(model.ObjectToXML().count("<Item "), count);
        model.Groups().Clear();
    };
    EXPECT_LT(CostOfFourTimes(5'000, readAndWrite), kLinear);
}

TEST_F(TemplateBadInput, AMillionItemsAreReadAndWritten)
{
    constexpr int kMany = 1'000'000;
    EXPECT_TRUE(Read(Itemised(kMany, "<Item Name='I1'/>")));
    const CElements& items = model.Groups().Item("A")->Elements();
    ASSERT_EQ(items.Count(), kMany);
    EXPECT_EQ(NameOf(items.Item(Position(kMany))), "i1000000");
    EXPECT_EQ(items.Item("I777777")->ID(), 777'777);
    EXPECT_EQ(items.GetElementPosition(500'000), 500'000);
    EXPECT_EQ(model.ObjectToXML().count("<Item "), kMany);
}

TEST_F(TemplateBadInput, AHundredThousandItemsOfOneNameAreOne)
{
    const auto read = [this](int times) {
        const QByteArray items = QByteArray("<Item Name='I'><Location>L</Location></Item>").repeated(times);
        EXPECT_TRUE(Read("<Template><Group Name='A'>" + items + "</Group></Template>"));
    };
    EXPECT_LT(CostOfFourTimes(25'000, read), kLinear);
    EXPECT_EQ(Listed(model.Groups().Item("A")->Elements()), "1 I");
}

TEST_F(TemplateBadInput, AsManyAttributesAsATagMayHaveAreReadAndWritten)
{
    EXPECT_TRUE(Read(TemplateWith(4096, "")));
    EXPECT_EQ(model.ObjectToXML().toUtf8(), TemplateWith(4096, ""));
    EXPECT_EQ(model.Properties().Count(), 4096);
    EXPECT_FALSE(Read(TemplateWith(4096, " b='1'")));
}

TEST_F(TemplateBadInput, AFileReadAfterABadOneIsReadAsIfItWereTheFirst)
{
    EXPECT_TRUE(IsRefused("<Template><Group Name='X'>"));
    EXPECT_EQ(DrawnFrom("<Template><Group Name='A'/></Template>"), "\n  2 A: Name='A'\n");
}

TEST_P(TemplateBadXml, IsRefusedInsideOfATemplateAndAsAWhole)
{
    QString xml = GetParam().text;
    EXPECT_TRUE(!xml.isValidUtf16() || IsRefused(xml.toUtf8()));
    EXPECT_TRUE(IsRefused(Utf16(xml)));
    xml.replace("TABLE", "Template").replace("<TR", "<Group Name='A'").replace("TR>", "Group>");
    EXPECT_TRUE(!xml.isValidUtf16() || IsRefused(xml.toUtf8()));
}

INSTANTIATE_TEST_SUITE_P(All, TemplateBadXml, ::testing::ValuesIn(BadDocuments("/nowhere")),
                         [](const auto& tested) { return std::string(tested.param.name); });
