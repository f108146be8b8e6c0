#include "TriedSaving.h"

#include <QDir>

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <set>

namespace schedules::host::testing {

using schedules::testing::FileCounts;
using schedules::testing::FileFault;
using schedules::testing::FileOperation;
using schedules::testing::OwnProcess;

namespace {

constexpr std::string_view kBegun = "begun\n";
constexpr std::string_view kEnded = "ended\n";

std::string Told(const FileCounts& counts)
{
    std::string told;
    for (const int count : counts)
        told += std::to_string(count) + ' ';
    return told;
}

FileCounts CountsIn(const std::string& told)
{
    FileCounts counts{};
    std::istringstream words(told);
    for (int& count : counts)
        words >> count;
    return counts;
}

bool HindersDeleting(const FileFault& fault)
{
    return fault.operation == FileOperation::Delete || fault.operation == FileOperation::List ||
           fault.operation == FileOperation::Any;
}

std::string TextOf(const std::map<std::string, std::string>& files, const std::string& name)
{
    const auto found = files.find(name);
    return found == files.end() ? "(no file)" : found->second;
}

} // namespace

TriedSaving::TriedSaving(const SavingKind& kind) : m_saving(kind.make())
{
    EXPECT_TRUE(QDir(m_root.path()).mkpath("work/temporary"));
    m_saving->Prepare(Folder());
    m_before = FilesIn(Folder());
    m_former = DrawnFilesIn(Folder());
    const auto [told, failure] = Begin()->Await();
    EXPECT_EQ(failure, 0) << told;
    EXPECT_TRUE(told.starts_with(kBegun) && told.ends_with(kEnded)) << told;
    m_counts = CountsIn(told.substr(kBegun.size()));
    m_new = DrawnFilesIn(Folder());
    EXPECT_NE(m_new, m_former);
    Restore(Folder(), m_before);
}

std::unique_ptr<OwnProcess> TriedSaving::Begin(const std::optional<FileFault>& fault) const
{
    return std::make_unique<OwnProcess>([&](const OwnProcess::Tell& tell) {
        qputenv("TMPDIR", QFile::encodeName(Folder() + "/temporary"));
        if (!schedules::testing::WatchFiles(Folder(), fault))
            return;
        tell(kBegun);
        const QString failure = m_saving->Save();
        if (fault)
            tell(failure.toStdString());
        else
            tell(Told(schedules::testing::SeenOperations()) + failure.toStdString());
        tell(kEnded);
    });
}

bool TriedSaving::ExpectFormerOrNew(Leftovers leftovers)
{
    const Drawing now = DrawnFilesIn(Folder());
    std::set<std::string> names;
    for (const Drawing* each : std::initializer_list<const Drawing*>{&now, &m_former, &m_new})
        std::ranges::transform(*each, std::inserter(names, names.end()), &Drawing::value_type::first);
    bool allNew = true;
    for (const std::string& name : names)
        allNew &= ExpectOneOf(name, now, leftovers);
    Restore(Folder(), m_before);
    return allNew;
}

bool TriedSaving::ExpectOneOf(const std::string& name, const Drawing& now, Leftovers leftovers) const
{
    const std::string text = TextOf(now, name);
    const bool isNew = text == TextOf(m_new, name);
    const bool isNoResult = !m_new.contains(name) || m_saving->MayStayUnfinished();
    const bool isLeft = !isNew && now.contains(name) && !m_former.contains(name) && isNoResult;
    if (isLeft)
        EXPECT_TRUE(leftovers == Leftovers::Allowed) << name << " is left";
    else
        EXPECT_TRUE(isNew || text == TextOf(m_former, name)) << name << " is neither:\n" << text.substr(0, 2000);
    return isNew || (isLeft && !m_new.contains(name));
}

void TriedSaving::ExpectSurvives(const FileFault& fault)
{
    SCOPED_TRACE(Drawn(fault));
    const auto [told, failure] = Begin(fault)->Await();
    ASSERT_EQ(failure, 0) << told;
    const bool wasTold = told.size() > kBegun.size() + kEnded.size();
    const bool allNew = ExpectFormerOrNew(HindersDeleting(fault) ? Leftovers::Allowed : Leftovers::None);
    EXPECT_TRUE(allNew || wasTold) << "nobody was told";
}

void TriedSaving::ExpectSurvivesDeath(OwnProcess& process)
{
    const auto [told, failure] = process.Await();
    ASSERT_TRUE(failure == SIGKILL || told.ends_with(kEnded)) << failure << ' ' << told;
    const bool allNew = ExpectFormerOrNew(Leftovers::Allowed);
    EXPECT_TRUE(allNew || !told.ends_with(kEnded));
}

} // namespace schedules::host::testing
