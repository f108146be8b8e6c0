#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace schedules::host::testing {

/// Something that the program saves.
class Saving
{
public:
    virtual ~Saving() = default;

    /// Puts into a folder what there is before, and does what a user does before he saves. Nothing of the folder is
    /// open afterwards.
    virtual void Prepare(const QString& folder) = 0;

    /// Saves. What the user is told of a failure; empty when he is told nothing. All of it happens in the folder.
    virtual QString Save() = 0;

    /// Whether a file that was not there before may be found unfinished after the program was killed, or could not take
    /// it away again.
    virtual bool MayStayUnfinished() const { return false; }

    /// Whether a file of that name, with that text, is how this saving tells of a failure.
    virtual bool TellsOfFailure(const std::string& /*name*/, const std::string& /*text*/) const { return false; }
};

struct SavingKind
{
    std::string name;
    std::function<std::unique_ptr<Saving>()> make;

    friend void PrintTo(const SavingKind& kind, std::ostream* out) { *out << kind.name; }
};

/// Everything that the program saves.
std::vector<SavingKind> AllSavings();

/// The one of that name.
SavingKind SavingNamed(const std::string& name);

} // namespace schedules::host::testing
