#pragma once

#include <QString>

#include <functional>

namespace schedules {
struct Message;
} // namespace schedules

namespace schedules::host {

class HostRouter;

/// Where a host keeps its templates.
struct TemplatePlaces
{
    QString folder;     ///< of the templates' files
    QString list;       ///< the file with the list of templates
    QString categories; ///< the file with the list of categories
    QString current;    ///< the file name of the template that the schedule uses; empty for none
};

/// A host's templates on files alone: answers what the options editor asks about them, and does what it tells. Files
/// are read anew for each question, and replaced as a whole; a file that cannot be read or written fails the message,
/// and is then as it was.
class TemplateFileAnswers
{
public:
    using KeepCurrent = std::function<void(const QString& fileName)>;

    /// `keepCurrent` is told each template that the schedule uses from now on. The router must outlive this object.
    /// Throws `HostError` when there is no such folder, or a list cannot be read.
    TemplateFileAnswers(HostRouter& router, const TemplatePlaces& places, KeepCurrent keepCurrent = {});
    ~TemplateFileAnswers();
    Q_DISABLE_COPY_MOVE(TemplateFileAnswers)

    /// The file name of the template that the schedule uses.
    const QString& Current() const { return m_places.current; }

private:
    QString UseTemplate(const Message& message);
    QString ReplaceList(const Message& message) const;
    QString RemoveFromList(const Message& message) const;

    HostRouter& m_router;
    TemplatePlaces m_places;
    KeepCurrent m_keepCurrent;
};

} // namespace schedules::host
