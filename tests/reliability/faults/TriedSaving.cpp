#include "TriedSaving.h"

#include <QDir>

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

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
        told += ' ' + std::to_string(count);
    return told;
}

/// What a try that has ended tells.
struct Outcome
{
    FileCounts counts{};
    std::string failure; ///< what the user was told
};

/// Nothing of a try that has not ended.
std::optional<Outcome> OutcomeIn(std::string_view told)
{
    if (!told.starts_with(kBegun) || !told.ends_with(kEnded))
        return std::nullopt;
    Outcome outcome;
    std::istringstream words(std::string(told.substr(kBegun.size(), told.size() - kBegun.size() - kEnded.size())));
    for (int& count : outcome.counts)
        words >> count;
    words.ignore();
    outcome.failure.assign(std::istreambuf_iterator<char>(words), {});
    return outcome;
}

bool HindersDeleting(const FileFault& fault)
{
    return fault.operation == FileOperation::Delete || fault.operation == FileOperation::List ||
           fault.operation == FileOperation::Any;
}

void ExpectSound(const std::map<std::string, std::string>& files)
{
    for (const auto& [name, drawing] : files)
        EXPECT_FALSE(drawing.starts_with(kDamaged)) << name << ": " << drawing;
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
    const auto outcome = OutcomeIn(told).value_or(Outcome{{}, "it did not end"});
    EXPECT_EQ(failure, 0) << told;
    EXPECT_EQ(outcome.failure, "");
    m_counts = outcome.counts;
    m_new = DrawnFilesIn(Folder());
    EXPECT_NE(m_new, m_former);
    ExpectSound(m_former);
    ExpectSound(m_new);
    Restore(Folder(), m_before);
}

std::unique_ptr<OwnProcess> TriedSaving::Begin(const std::optional<FileFault>& fault) const
{
    return std::make_unique<OwnProcess>([&](const OwnProcess::Tell& tell) {
        qputenv("TMPDIR", QFile::encodeName(Folder() + "/temporary"));
        ASSERT_TRUE(schedules::testing::WatchFiles(Folder(), fault));
        tell(kBegun);
        const QString failure = m_saving->Save();
        tell(Told(schedules::testing::SeenOperations()) + '\n' + failure.toStdString());
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
    if (!isNew && m_saving->TellsOfFailure(name, text))
        return false;
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
    const auto outcome = OutcomeIn(told);
    const bool allNew = ExpectFormerOrNew(HindersDeleting(fault) ? Leftovers::Allowed : Leftovers::None);
    ASSERT_TRUE(failure == 0 && outcome) << failure << ' ' << told;
    EXPECT_GT(outcome->counts[static_cast<std::size_t>(fault.operation)], fault.index) << "there was no such operation";
    EXPECT_TRUE(allNew || !outcome->failure.empty()) << "nobody was told";
}

bool TriedSaving::ExpectSurvivesDeath(OwnProcess& process)
{
    const auto [told, failure] = process.Await();
    const auto outcome = OutcomeIn(told);
    const bool allNew = ExpectFormerOrNew(Leftovers::Allowed);
    EXPECT_TRUE(failure == SIGKILL || failure == 0) << failure << ' ' << told;
    EXPECT_TRUE(failure == SIGKILL || outcome) << told;
    EXPECT_TRUE(allNew || !outcome) << "what was told to be saved is not there";
    EXPECT_EQ(outcome.value_or(Outcome()).failure, "");
    return !outcome;
}

} // namespace schedules::host::testing
