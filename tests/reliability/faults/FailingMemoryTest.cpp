// Loads for which there is not enough memory: they end in a failure that is told, or do without, and the next one
// works.

#include "FailingMemory.h"

#include "host/cli/GridJson.h"
#include "host/files/XmlFile.h"
#include "host/tools/ConsoleUserInterface.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"
#include "model/CTemplates.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <iostream>

namespace schedules::host::testing {

using schedules::testing::FailingMemory;
using schedules::testing::OurAllocations;

namespace {

const QString kSamples = QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/");

/// Which allocations are to fail of these: all of the first ones, then some of the others.
std::vector<int> Chosen(const std::vector<int>& places)
{
    constexpr std::size_t kFirst = 300;
    constexpr std::size_t kOthers = 300;
    const std::size_t step = std::max(places.size(), kFirst + kOthers) / kOthers;
    std::vector<int> chosen;
    for (std::size_t index = 0; index < places.size(); index += index < kFirst ? 1 : step)
        chosen.push_back(places[index]);
    return chosen;
}

/// Something that is loaded, over and over into the same place.
class Load
{
public:
    virtual ~Load() = default;

    /// Loads. Runs while memory may be missing.
    virtual void Run() = 0;

    /// Loads something else into the place.
    virtual void RunOther() = 0;

    /// What is there now.
    virtual std::string Shown() const = 0;

    /// What was told by loads since the last call; empty when nothing.
    virtual std::string Told() { return m_user.TakeReports().join('\n').toStdString(); }

protected:
    ConsoleUserInterface m_user;
};

class ViewLoad : public Load
{
public:
    ViewLoad(View view, const QString& text) : m_tool(m_session.Router(), &m_user, {.view = view}), m_text(text) {}

    void Run() override { m_tool.Load(m_text); }
    void RunOther() override { m_tool.Load("<TABLE><TR><TH>Tag</TH></TR><TR><TH>P-1</TH></TR></TABLE>"); }

    std::string Shown() const override
    {
        return GridJson(m_tool.Grid(), m_tool.Orientation(), m_tool.Transposed()).toStdString();
    }

private:
    Session m_session{SessionOptions()};
    HostedSchedule m_tool;
    QString m_text;
};

/// Of the model, which also gives whether it has read what it should.
class ModelLoad : public Load
{
public:
    void Run() override { m_isRead = Read(); }
    void RunOther() override { m_isRead = ReadOther(); }

    /// That it was not read is the result, whether the user is told more or not.
    std::string Told() override { return Load::Told() + (m_isRead ? "" : "not read"); }

protected:
    void Write(const QString& name, const QByteArray& content)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QString Folder() const { return m_folder.path(); }

private:
    virtual bool Read() = 0;
    virtual bool ReadOther() = 0;

    QTemporaryDir m_folder;
    bool m_isRead = false;
};

class TemplateLoad : public ModelLoad
{
public:
    explicit TemplateLoad(const QByteArray& content)
    {
        Write(m_fileName, content);
        Write(m_otherFileName, "<Template><Group Name='Other'/></Template>");
        m_template.SetFilePath(Folder());
    }

    std::string Shown() const override { return m_template.ObjectToXML().toStdString(); }

private:
    bool Read() override { return ReadFrom(m_fileName); }
    bool ReadOther() override { return ReadFrom(m_otherFileName); }

    bool ReadFrom(const QString& fileName)
    {
        m_template.SetFilename(fileName);
        return m_template.XMLToObject();
    }

    CTemplate m_template{m_user};
    QString m_fileName = "template.xml";
    QString m_otherFileName = "other.xml";
};

/// As many as are looked up in an index.
constexpr int kEntries = 20;

QString CategoryList(int count, const QString& displayName)
{
    QString list = "<Categories>";
    for (int number = 1; number <= count; ++number)
        list += QString("<Category name='Category %1' displayname='%2 %1' pdsg='p %1'/>").arg(number).arg(displayName);
    return list + "</Categories>";
}

/// Of the categories that are loaded all but two are there already, under other display names.
class CategoriesLoad : public ModelLoad
{
public:
    explicit CategoriesLoad(const QString& end) : m_list(CategoryList(kEntries, "Shown") + end) {}

    /// In any order: what could not be added stands behind the others after the next load.
    std::string Shown() const override
    {
        QStringList lines;
        for (const auto& category : m_categories.NewEnum())
            lines += category->Name() + '|' + category->DisplayName() + '|' + category->Pdsg();
        lines.sort();
        return lines.join('\n').toStdString();
    }

private:
    bool Read() override { return m_categories.CreateObjects(m_list); }

    bool ReadOther() override
    {
        m_categories.Clear();
        return m_categories.CreateObjects(m_other);
    }

    CCategories m_categories{m_user};
    QString m_list;
    QString m_other = CategoryList(kEntries - 2, "Known");
};

QString TemplateList(int count)
{
    QString list = "<Templates>";
    for (int number = 1; number <= count; ++number)
        list += QString("<Template name='Template %1' filename='%2.xml' pdsg='p %1' readonly='%3' "
                        "category='Category %1' defaultforcategory='%3'/>")
                    .arg(number)
                    .arg(number % 2)
                    .arg(-(number % 2));
    return list + "</Templates>";
}

/// A catalogue, with its categories and the files of its templates.
class CatalogueLoad : public ModelLoad
{
public:
    explicit CatalogueLoad(const QString& end)
        : m_list(TemplateList(kEntries) + end), m_categories(CategoryList(kEntries, "Shown") + end)
    {
        Write("0.xml", "<Template><Group Name='Even'/></Template>");
        Write("1.xml", "<Template><Group Name='Odd'/></Template>");
    }

    std::string Shown() const override
    {
        QStringList lines;
        for (const auto& each : m_catalogue.NewEnum())
            lines += Line(*each);
        return lines.join('\n').toStdString();
    }

private:
    static QString Line(const CTemplate& listed)
    {
        return QString("%1 %2|%3|%4|%5|%6|%7|%8")
            .arg(listed.ID())
            .arg(listed.Name(), listed.Filename(), listed.Pdsg())
            .arg(listed.Protected())
            .arg(listed.Category() ? listed.Category()->DisplayName() : "no category")
            .arg(listed.DefaultForCategory())
            .arg(listed.ObjectToXML());
    }

    bool Read() override { return m_catalogue.CreateObjects(m_list, m_categories, Folder()); }
    bool ReadOther() override { return m_catalogue.CreateObjects(m_otherList, m_otherCategories, Folder()); }

    CTemplates m_catalogue{m_user};
    QString m_list;
    QString m_categories;
    QString m_otherList = TemplateList(kEntries - 2);
    QString m_otherCategories = CategoryList(kEntries, "Known");
};

struct LoadKind
{
    std::string name;
    std::function<std::unique_ptr<Load>()> make;

    friend void PrintTo(const LoadKind& kind, std::ostream* out) { *out << kind.name; }
};

QString Sample(const char* name)
{
    return ReadXmlFile(kSamples + name);
}

/// A comment is not for the quick reader.
QString ForFullParser(QString text)
{
    return text.append("<!-- read by the full parser -->");
}

QByteArray Utf16(const QString& text)
{
    QStringEncoder encoder(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    return encoder(QString(text).replace("UTF-8", "UTF-16"));
}

template <class Kind, class... Arguments>
std::function<std::unique_ptr<Load>()> Made(Arguments... arguments)
{
    return [=] { return std::make_unique<Kind>(arguments...); };
}

std::vector<LoadKind> AllLoads()
{
    const QString schedule = Sample("air-handling.xml");
    const QString selection = Sample("selection.xml");
    const QString text = Sample("templates/PumpSchedule.xml");
    return {{"Schedule", Made<ViewLoad>(View::Schedule, schedule)},
            {"ScheduleForTheFullParser", Made<ViewLoad>(View::Schedule, ForFullParser(schedule))},
            {"Selection", Made<ViewLoad>(View::Selector, selection)},
            {"SelectionForTheFullParser", Made<ViewLoad>(View::Selector, ForFullParser(selection))},
            {"Template", Made<TemplateLoad>(text.toUtf8())},
            {"TemplateForTheFullParser", Made<TemplateLoad>(ForFullParser(text).toUtf8())},
            {"TemplateInUtf16", Made<TemplateLoad>(Utf16(text))},
            {"Categories", Made<CategoriesLoad>(QString())},
            {"CategoriesForTheFullParser", Made<CategoriesLoad>(ForFullParser({}))},
            {"Catalogue", Made<CatalogueLoad>(QString())},
            {"CatalogueForTheFullParser", Made<CatalogueLoad>(ForFullParser({}))}};
}

/// A load that has gone well, and is done again where something else has been loaded since.
class LoadWithoutMemory : public ::testing::TestWithParam<LoadKind>
{
protected:
    LoadWithoutMemory()
    {
        load->Run();
        EXPECT_EQ(load->Told(), "");
        expected = load->Shown();
        load->RunOther();
        EXPECT_EQ(load->Told(), "");
        other = load->Shown();
        EXPECT_NE(expected, other);
    }

    /// Before which allocations the memory is to end.
    std::vector<int> Places()
    {
        const auto places = OurAllocations([this] { load->Run(); });
        ExpectNextLoadsWork();
        return Chosen(places);
    }

    /// Loads; whether an allocation has failed.
    bool FailsIn(int successes, FailingMemory::Lasting lasting)
    {
        const FailingMemory failing(successes, lasting);
        load->Run();
        return failing.HasFailed();
    }

    void ExpectNextLoadsWork()
    {
        load->Run();
        EXPECT_EQ(load->Told(), "");
        EXPECT_EQ(load->Shown(), expected);
        load->RunOther();
        EXPECT_EQ(load->Told(), "");
        EXPECT_EQ(load->Shown(), other);
    }

    std::unique_ptr<Load> load = GetParam().make();
    std::string expected;
    std::string other;
};

std::string NameOf(const ::testing::TestParamInfo<LoadKind>& info)
{
    return info.param.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, LoadWithoutMemory, ::testing::ValuesIn(AllLoads()), NameOf);

TEST_P(LoadWithoutMemory, IsToldOrComplete)
{
    const auto places = Places();
    int failedLoads = 0;
    for (const int place : places) {
        SCOPED_TRACE(place);
        EXPECT_TRUE(FailsIn(place, FailingMemory::Lasting::Once)) << "no allocation failed";
        const bool wasTold = !load->Told().empty();
        failedLoads += wasTold ? 1 : 0;
        EXPECT_TRUE(wasTold || load->Shown() == expected);
        ExpectNextLoadsWork();
    }
    EXPECT_GT(failedLoads, 0);
    RecordProperty("allocations", static_cast<int>(places.size()));
    RecordProperty("told", failedLoads);
    std::cout << places.size() << " allocations failed, " << failedLoads << " loads\n";
}

TEST_P(LoadWithoutMemory, EndsWhenThereIsNoneFromThenOn)
{
    const auto places = Places();
    ASSERT_GT(places.size(), 100u);
    for (const int place : places) {
        SCOPED_TRACE(place);
        EXPECT_TRUE(FailsIn(place, FailingMemory::Lasting::FromThenOn)) << "no allocation failed";
        load->Told();
        ExpectNextLoadsWork();
    }
}

} // namespace schedules::host::testing
