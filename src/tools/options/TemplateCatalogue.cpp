#include "tools/options/TemplateCatalogue.h"

namespace schedules {

TemplateCatalogue::TemplateCatalogue(HostLink& host)
    : m_host(host), m_reports(std::make_shared<GatheredReports>(host.Ui()))
{
}

void TemplateCatalogue::Begin()
{
    m_templates = std::make_shared<CTemplates>(*m_reports);
}

CTemplates& TemplateCatalogue::Templates() const
{
    return m_templates ? *m_templates : throw ToolGone();
}

bool TemplateCatalogue::Refill()
{
    const QString templateList = GetAllTemplates();
    m_folder = GetBuilderPath();
    const QString categories = TemplateCategories();
    if (!m_templates)
        Begin();
    if (!templateList.isEmpty() && !m_folder.isEmpty())
        return Create(templateList, categories);
    m_templates->Clear();
    return false;
}

bool TemplateCatalogue::Create(const QString& templateList, const QString& categories)
{
    const auto templates = m_templates; // what is reported may be the end of the editor
    const auto reports = m_reports;
    bool isCreated = false;
    m_host.Life().WhileAlive([&, folder = m_folder] {
        reports->Together([&] { isCreated = templates->CreateObjects(templateList, categories, folder); });
    });
    return isCreated;
}

QString TemplateCatalogue::GetAllTemplates() const
{
    return m_host.Guarded(__func__, QString(),
                          [this] { return m_host.Ask(HostLink::Request(u"GETTEMPLATELIST", {QString()})); });
}

QString TemplateCatalogue::GetBuilderPath() const
{
    return m_host.Guarded(__func__, QString(),
                          [this] { return m_host.Ask(HostLink::Request(u"GETBUILDERPATH", {QString()})); });
}

QString TemplateCatalogue::TemplateCategories() const
{
    return m_host.Ask(HostLink::Request(u"GETTEMPLATECATEGORIES"));
}

QString CategoryNameOf(const CTemplate& listed)
{
    const auto category = listed.Category();
    return category ? category->Name() : QString();
}

} // namespace schedules
