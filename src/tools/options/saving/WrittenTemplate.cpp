#include "tools/options/saving/WrittenTemplate.h"

#include "model/CTemplate.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/saving/TemplateRoot.h"

namespace schedules {

namespace {

QString TextIn(const CProperties& properties, const char* name, const QString& otherwise)
{
    const auto property = properties.Item(QLatin1String(name));
    return property ? TextOf(property->Value()) : otherwise;
}

} // namespace

WrittenTemplate Written(const std::shared_ptr<CTemplate>& current, HostLink& host)
{
    const auto held = current; // failures are shown, and that may be the end of the editor
    const QString xml = host.Life().WhileAlive([&] { return held->ObjectToXML(); });
    const CProperties& properties = held->Properties();
    return {xml, TextIn(properties, "Name", held->Name()), TextIn(properties, "DisplayName", held->Name()),
            TextIn(properties, "Category", CategoryNameOf(*held)), held->Filename()};
}

QString FileText(const WrittenTemplate& written, bool asItIs)
{
    if (asItIs) {
        WithRootAttributes(written.xml, {}); // no file gets a text that nobody can read
        return written.xml;
    }
    return WithRootAttributes(written.xml, {{QStringLiteral("Name"), written.name},
                                            {QStringLiteral("DisplayName"), written.displayName},
                                            {QStringLiteral("Category"), written.category},
                                            {QStringLiteral("AllowEdit"), QStringLiteral("-1")}});
}

} // namespace schedules
