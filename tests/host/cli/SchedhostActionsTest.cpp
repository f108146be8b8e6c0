// What a script makes the view's user do.

#include "host/HostProgram.h"

#include <QColor>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace schedules::host::testing {

namespace {

/// Flow may be edited, in service toggled, head not; the last line is hidden.
constexpr auto kTable = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n"
                        "<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH><TH>In service</TH></TR>"
                        "<TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD>48</TD>"
                        "<TD AllowEdit='-1' dataType='CHECKBOX' visible='-1'>0</TD></TR>"
                        "<TR><TH>P-2</TH><TD AllowEdit='-1'>9</TD><TD>49</TD>"
                        "<TD dataType='CHECKBOX' visible='-1'>1</TD></TR>"
                        "<TR><TH hidden='-1'>P-3</TH><TD AllowEdit='-1'>10</TD><TD/><TD/></TR></TABLE>";
constexpr auto kTags =
    "<TABLE><TR><TH/><TH>1</TH><TH>2</TH><TH>3</TH></TR><TR><TH>Tag</TH><TD>P-1</TD><TD>P &amp; 2</TD><TD>P-3</TD></TR>"
    "<TR><TH>Select</TH><TD dataType='CHECKBOX' visible='-1'/><TD dataType='CHECKBOX' visible='-1'/><TD/></TR></TABLE>";

struct SchedhostActions : HostProgram
{
    QString Table()
    {
        // In UTF-16, as it declares.
        const QString text = QString::fromUtf8(kTable);
        return Written(QStringLiteral("table.xml"),
                       QByteArray("\xFF\xFE") +
                           QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    }

    Outcome Dump(const QStringList& options) { return Schedhost(QStringList{"dump", Table()} + options); }

    Outcome Select(const QStringList& options)
    {
        return Schedhost(QStringList{"dump", Written(QStringLiteral("tags.xml"), kTags), "--view", "selector"} +
                         options);
    }

    static void ExpectRefusal(const Outcome& run, const char* line)
    {
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.toStdString(), std::string(line) + '\n');
    }

    static std::string TextAt(const Outcome& run, int column, int row)
    {
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        for (const QJsonValue cell : QJsonDocument::fromJson(run.out)[QStringLiteral("cells")].toArray()) {
            if (cell[QStringLiteral("column")].toInt() == column && cell[QStringLiteral("row")].toInt() == row)
                return cell[QStringLiteral("text")].toString().toStdString();
        }
        return "(no cell)";
    }

    static QVariantList RowOrder(const Outcome& run)
    {
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        return QJsonDocument::fromJson(run.out)[QStringLiteral("rowOrder")].toArray().toVariantList();
    }

    /// The names of the messages after the start-up.
    QByteArrayList MessageNames()
    {
        QByteArrayList names;
        for (const QByteArray& line : Read(QStringLiteral("messages")).trimmed().split('\n').sliced(2))
            names.append(line.split('"').value(7));
        return names;
    }
};

} // namespace

TEST_F(SchedhostActions, EditTypesIntoACell)
{
    EXPECT_EQ(TextAt(Dump({"--edit", "1,1=12.5 é𝄞=x"}), 1, 1), "12.5 é𝄞=x");
    EXPECT_EQ(TextAt(Dump({"--edit", "1,1="}), 1, 1), "(no cell)") << "a text may be taken away";
}

TEST_F(SchedhostActions, EditsAreManyAndComeAfterTranspose)
{
    const Outcome run = Dump({"--edit", "2,1=a", "--edit", "1,1=b", "--transpose", "--edit", "2,1=c"});
    EXPECT_EQ(TextAt(run, 2, 1), "c") << "the last one holds";
    EXPECT_EQ(TextAt(run, 1, 1), "b");
    EXPECT_EQ(TextAt(run, 0, 1), "Flow") << "lines are columns";
}

TEST_F(SchedhostActions, EditTogglesACheckBox)
{
    EXPECT_EQ(TextAt(Dump({"--edit", "3,1=1"}), 3, 1), "1");
    EXPECT_EQ(TextAt(Dump({"--edit", "3,1=0"}), 3, 1), "0");
}

TEST_F(SchedhostActions, WhatTheViewDoesNotAllowIsTold)
{
    ExpectRefusal(Dump({"--edit", "2,1=1"}), "the cell in column 2, row 1 cannot be edited");
    ExpectRefusal(Dump({"--edit", "0,1=1"}), "the cell in column 0, row 1 cannot be edited");
    ExpectRefusal(Dump({"--edit", "1,0=1"}), "the cell in column 1, row 0 cannot be edited");
    ExpectRefusal(Dump({"--edit", "3,2=0"}), "the cell in column 3, row 2 cannot be edited");
    ExpectRefusal(Dump({"--edit", "1,3=1"}), "the cell in column 1, row 3 is hidden");
    ExpectRefusal(Dump({"--edit", "4,1=1"}), "the cell in column 4, row 1 does not exist");
    ExpectRefusal(Dump({"--edit", "3,1=yes"}),
                  "the cell in column 3, row 1 is a check box, which takes 1 or 0, not 'yes'");
    const QString long31(31, u'x');
    ExpectRefusal(Dump({"--edit", "1,1=" + long31}),
                  "the cell in column 1, row 1 does not take 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'");
}

TEST_F(SchedhostActions, AFullStopGoesBeyondTheLongestValue)
{
    const QString text = QString(30, u'x') + "..";
    EXPECT_EQ(TextAt(Dump({"--edit", "1,1=" + text}), 1, 1), text.toStdString());
}

TEST_F(SchedhostActions, SortOrdersTheRowsAsShown)
{
    EXPECT_EQ(RowOrder(Dump({"--sort", "1"})), (QVariantList{2, 3, 1}));
    EXPECT_EQ(RowOrder(Dump({"--sort", "1:desc"})), (QVariantList{1, 3, 2}));
    EXPECT_EQ(RowOrder(Dump({"--sort", "1", "--edit", "1,1=1"})), (QVariantList{1, 2, 3})) << "after the edits";
    EXPECT_EQ(TextAt(Dump({"--sort", "1"}), 1, 1), "12") << "addresses stay";
    EXPECT_FALSE(Dump({}).out.contains("rowOrder"));
}

TEST_F(SchedhostActions, SortNeedsAColumnAndALayoutThatSorts)
{
    ExpectRefusal(Dump({"--sort", "4"}), "there is no column 4 to sort by");
    ExpectRefusal(Dump({"--sort", "0"}), "there is no column 0 to sort by");
    ExpectRefusal(Dump({"--sort", "1", "--transpose"}), "the view cannot be sorted in this layout");
}

TEST_F(SchedhostActions, TickTicksATagInEitherLayout)
{
    EXPECT_EQ(TextAt(Select({"--tick", "P & 2"}), 2, 2), "1");
    EXPECT_EQ(TextAt(Select({"--tick", "P & 2", "--transpose"}), 2, 2), "1");
    EXPECT_EQ(TextAt(Select({"--tick", "P-1", "--select-all"}), 1, 2), "1") << "one that is ticked stays so";
    ExpectRefusal(Select({"--tick", "P-9"}), "there is no tag 'P-9'");
    ExpectRefusal(Select({"--tick", "P-3"}), "the cell in column 3, row 2 cannot be ticked");
}

TEST_F(SchedhostActions, ContinueHandsOverThePickedTags)
{
    EXPECT_EQ(Select({"--tick", "P & 2", "--tick", "P-1", "--continue", "--messages", "messages"}).exitCode, 0);
    EXPECT_EQ(MessageNames(), QByteArrayList{"ContinueButton"});
    EXPECT_TRUE(Read(QStringLiteral("messages"))
                    .contains("&lt;Tags&gt;&lt;Tag&gt;&lt;Id&gt;P-1&lt;/Id&gt;&lt;/Tag&gt;"
                              "&lt;Tag&gt;&lt;Id&gt;P &amp;amp; 2&lt;/Id&gt;&lt;/Tag&gt;&lt;/Tags&gt;"));
}

TEST_F(SchedhostActions, ContinueWithoutATagIsAFailure)
{
    const Outcome run = Select({"--continue"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.startsWith("No tag is selected.")) << run.err.constData();
    EXPECT_EQ(run.err.count('\n'), 1);
}

TEST_F(SchedhostActions, SaveWritesWhatTheViewHandsOver)
{
    const QString input = Table();
    const QByteArray before = Read(input);
    EXPECT_EQ(Schedhost({"dump", input, "--edit", "1,1=é", "--save", "out.xml", "--messages", "messages"}).exitCode, 0);
    EXPECT_EQ(MessageNames(), QByteArrayList{"UpdateTagScheduleData"});
    const QByteArray written = QByteArray(kTable)
                                   .replace("UTF-16", "UTF-8")
                                   .replace("<TD AllowEdit='-1'>12<", "<TD AllowEdit='-1' Dirty=\"-1\">é<");
    EXPECT_EQ(Read(QStringLiteral("out.xml")).toStdString(), written.toStdString());
    EXPECT_EQ(Read(input), before) << "the input is never written";
}

TEST_F(SchedhostActions, WithoutEditsSaveWritesTheTableAsItCame)
{
    const QString input = Written(QStringLiteral("plain.xml"), kSmallTable);
    EXPECT_EQ(Schedhost({"dump", input, "--save", "out.xml"}).exitCode, 0);
    EXPECT_EQ(Read(QStringLiteral("out.xml")), kSmallTable);
}

TEST_F(SchedhostActions, WhatIsReadIsNotWritten)
{
    const QString input = Table();
    const QByteArray before = Read(input);
    for (const QStringList& options :
         {QStringList{"dump", input, "--save", "./table.xml"}, QStringList{"dump", input, "--messages", Path(input)},
          QStringList{"render", input, "--png", input}})
    {
        const Outcome run = Schedhost(options);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.err.endsWith("is the file to be read, and is not written\n")) << run.err.constData();
        EXPECT_EQ(Read(input), before);
    }
}

TEST_F(SchedhostActions, AFileThatCannotBeSavedEndsTheProgram)
{
    ExpectRefusal(Dump({"--save", "/dev/full"}), "cannot write /dev/full: No space left on device");
    ExpectRefusal(Dump({"--save", "absent/out.xml"}), "cannot write absent/out.xml: No such file or directory");
}

TEST_F(SchedhostActions, RenderShowsThemToo)
{
    const auto picture = [this](const QStringList& options) {
        EXPECT_EQ(Schedhost(QStringList{"render", Table(), "--png", "a.png"} + options).exitCode, 0);
        return QImage(Path(QStringLiteral("a.png")));
    };
    const QImage plain = picture({});
    EXPECT_NE(picture({"--edit", "1,1=77"}), plain);
    EXPECT_NE(picture({"--sort", "1"}), plain);
    EXPECT_EQ(picture({"--edit", "1,1=77"}).size(), plain.size());
}

TEST_F(SchedhostActions, PaletteChoosesLightOrDarkColours)
{
    const auto ground = [this](const QString& palette) {
        EXPECT_EQ(Schedhost({"render", Table(), "--png", "a.png", "--palette", palette}).exitCode, 0);
        return QImage(Path(QStringLiteral("a.png"))).pixelColor(1, 1).lightness();
    };
    EXPECT_LT(ground(QStringLiteral("dark")), 80);
    EXPECT_GT(ground(QStringLiteral("light")), 200);
}

} // namespace schedules::host::testing
