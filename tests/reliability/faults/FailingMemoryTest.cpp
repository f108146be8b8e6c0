// Loads for which there is not enough memory: they end in a failure that is told, or do without, and the next one
// works.

#include "FailingMemory.h"

#include "host/ConsoleUserInterface.h"
#include "host/GridJson.h"
#include "host/ScheduleTool.h"
#include "host/Session.h"
#include "host/XmlFile.h"
#include "model/CTemplate.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <iostream>

namespace schedules::host::testing {

using schedules::testing::FailingMemory;
using schedules::testing::kEnoughMemory;

namespace {

const QString kSamples = QStringLiteral(SCHEDULES_SOURCE_DIR "/samples/");

/// Which allocations are to fail of so many: all of the first ones, then some of the others.
std::vector<int> PlacesIn(int allocations)
{
    constexpr int kFirst = 300;
    constexpr int kOthers = 300;
    std::vector<int> places;
    for (int place = 0; place < std::min(allocations, kFirst); ++place)
        places.push_back(place);
    const int step = std::max(1, (allocations - kFirst) / kOthers);
    for (int place = kFirst; place < allocations; place += step)
        places.push_back(place);
    return places;
}

/// Something that is loaded, over and over into the same place.
class Load
{
public:
    virtual ~Load() = default;

    /// Loads. Runs while memory may be missing.
    virtual void Run() = 0;

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

    std::string Shown() const override
    {
        return GridJson(m_tool.Grid(), m_tool.Orientation(), m_tool.Transposed()).toStdString();
    }

private:
    Session m_session{CommandLine()};
    ScheduleTool m_tool;
    QString m_text;
};

class TemplateLoad : public Load
{
public:
    explicit TemplateLoad(const QByteArray& content)
    {
        QFile file(m_folder.filePath("template.xml"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        m_template.SetFilePath(m_folder.path());
        m_template.SetFilename("template.xml");
    }

    void Run() override { m_isRead = m_template.XMLToObject(); }

    std::string Shown() const override { return m_template.ObjectToXML().toStdString(); }

    /// That it was not read is the result, whether the user is told more or not.
    std::string Told() override { return Load::Told() + (m_isRead ? "" : "not read"); }

private:
    QTemporaryDir m_folder;
    CTemplate m_template{m_user};
    bool m_isRead = false;
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
            {"TemplateInUtf16", Made<TemplateLoad>(Utf16(text))}};
}

/// A load that has gone well, and is done again.
class LoadWithoutMemory : public ::testing::TestWithParam<LoadKind>
{
protected:
    LoadWithoutMemory()
    {
        load->Run();
        EXPECT_EQ(load->Told(), "");
        expected = load->Shown();
    }

    int Allocations()
    {
        const FailingMemory enough(kEnoughMemory);
        load->Run();
        return enough.Allocations();
    }

    /// Whether an allocation has failed.
    bool FailsIn(int successes, FailingMemory::Lasting lasting)
    {
        const FailingMemory failing(successes, lasting);
        load->Run();
        return failing.HasFailed();
    }

    void ExpectNextLoadWorks()
    {
        load->Run();
        EXPECT_EQ(load->Told(), "");
        EXPECT_EQ(load->Shown(), expected);
    }

    std::unique_ptr<Load> load = GetParam().make();
    std::string expected;
};

std::string NameOf(const ::testing::TestParamInfo<LoadKind>& info)
{
    return info.param.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, LoadWithoutMemory, ::testing::ValuesIn(AllLoads()), NameOf);

TEST_P(LoadWithoutMemory, IsToldOrComplete)
{
    const auto places = PlacesIn(Allocations());
    int failures = 0;
    int failedLoads = 0;
    for (const int place : places) {
        SCOPED_TRACE(place);
        failures += FailsIn(place, FailingMemory::Lasting::Once) ? 1 : 0;
        const bool wasTold = !load->Told().empty();
        failedLoads += wasTold ? 1 : 0;
        EXPECT_TRUE(wasTold || load->Shown() == expected);
        ExpectNextLoadWorks();
    }
    EXPECT_GT(failedLoads, 0);
    std::cout << failures << " allocations failed, " << failedLoads << " loads\n";
}

TEST_P(LoadWithoutMemory, EndsWhenThereIsNoneFromThenOn)
{
    for (const int place : PlacesIn(Allocations())) {
        SCOPED_TRACE(place);
        FailsIn(place, FailingMemory::Lasting::FromThenOn);
        load->Told();
        ExpectNextLoadWorks();
    }
}

} // namespace schedules::host::testing
