#pragma once

#include "common/GatheredReports.h"
#include "model/CTemplates.h"
#include "tools/HostLink.h"

namespace schedules {

/// The templates that the host lists, as objects, and what the host tells of them. It holds them from the start-up
/// until the editor is deactivated.
class TemplateCatalogue
{
public:
    explicit TemplateCatalogue(HostLink& host);

    /// Makes it new and empty.
    void Begin();
    void End() { m_templates.reset(); }
    bool IsThere() const { return m_templates != nullptr; }

    /// Throws `ToolGone` when it is not there: also a host that deactivates the editor in an answer ends what was under
    /// way.
    CTemplates& Templates() const;

    /// Asks the host for everything, and makes the templates anew; none without a list or a folder. Whether they could
    /// be made.
    bool Refill();

    /// The folder of the templates as the host told it last.
    const QString& Folder() const { return m_folder; }

    /// What the host answers now; empty when it does not, which has been told then.
    QString GetAllTemplates() const;
    QString GetBuilderPath() const;
    QString TemplateCategories() const;

private:
    bool Create(const QString& templateList, const QString& categories);

    HostLink& m_host;
    std::shared_ptr<GatheredReports> m_reports; // outlives the templates, which report to it
    std::shared_ptr<CTemplates> m_templates;
    QString m_folder;
};

/// The name of a template's category; empty when it has none.
QString CategoryNameOf(const CTemplate& listed);

} // namespace schedules
