#pragma once

#include "FolderFiles.h"
#include "Saving.h"
#include "support/FileFaults.h"
#include "support/OwnProcess.h"

#include <QTemporaryDir>

namespace schedules::host::testing {

/// A saving that is tried over and over, each time by a process of its own and on the same files.
class TriedSaving
{
public:
    /// Saves once without any fault, to know what should be there then: all of it sound, and no failure told.
    explicit TriedSaving(const SavingKind& kind);

    /// How often that has done each file operation.
    const schedules::testing::FileCounts& Counts() const { return m_counts; }

    /// Begins another try. Something is told when the saving is about to begin, and when it has ended.
    std::unique_ptr<schedules::testing::OwnProcess>
    Begin(const std::optional<schedules::testing::FileFault>& fault = {}) const;

    /// Whether leftovers may lie beside the files.
    enum class Leftovers
    {
        None,
        Allowed
    };

    /// Each file is as it was before, or as it should be; whether all are as they should be. Everything is as it was
    /// before then.
    bool ExpectFormerOrNew(Leftovers leftovers);

    /// A try with a fault, to which it must come: the same, and unless all are as they should be the user has been
    /// told.
    void ExpectSurvives(const schedules::testing::FileFault& fault);

    /// The process of another try has been killed; the same again. When it had ended before, what it saved is there.
    /// Whether it died before it had ended.
    bool ExpectSurvivesDeath(schedules::testing::OwnProcess& process);

private:
    using Drawing = std::map<std::string, std::string>;

    QString Folder() const { return m_root.filePath("work"); }
    bool ExpectOneOf(const std::string& name, const Drawing& now, Leftovers leftovers) const;

    QTemporaryDir m_root;
    std::unique_ptr<Saving> m_saving;
    FolderFiles m_before;
    Drawing m_former;
    Drawing m_new;
    schedules::testing::FileCounts m_counts{};
};

} // namespace schedules::host::testing
