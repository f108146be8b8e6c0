#include "host/cli/CatalogueJson.h"

#include "host/base/Json.h"
#include "model/CTemplates.h"

namespace schedules::host {

namespace {

QByteArray ItemJson(const CElement& item)
{
    return JsonObject({{"id", QByteArray::number(item.ID())},
                       {"name", JsonText(item.Name())},
                       {"location", JsonText(item.Location())}});
}

QByteArray GroupJson(const CGroup& group)
{
    QByteArrayList items;
    for (const auto& item : group.Elements().NewEnum())
        items << ItemJson(*item);
    return JsonObject(
        {{"id", QByteArray::number(group.ID())}, {"name", JsonText(group.Name())}, {"items", JsonArray(items)}});
}

QByteArray GroupsJson(const CGroups& groups)
{
    QByteArrayList values;
    for (const auto& group : groups.NewEnum())
        values << GroupJson(*group);
    return JsonArray(values);
}

QByteArray TemplateJson(const CTemplate& source)
{
    const auto category = source.Category();
    return JsonObject({{"id", QByteArray::number(source.ID())},
                       {"name", JsonText(source.Name())},
                       {"filename", JsonText(source.Filename())},
                       {"pdsg", JsonText(source.Pdsg())},
                       {"protected", JsonFlag(source.Protected())},
                       {"defaultForCategory", JsonFlag(source.DefaultForCategory())},
                       {"category", category ? JsonText(category->Name()) : "null"},
                       {"categoryDisplayName", category ? JsonText(category->DisplayName()) : "null"},
                       {"isDefaultTemplate", JsonFlag(source.IsDefaultTemplate())},
                       {"groups", GroupsJson(source.Groups())}});
}

} // namespace

QByteArray CatalogueJson(const CTemplates& catalogue)
{
    QByteArrayList templates;
    for (const auto& listed : catalogue.NewEnum())
        templates << TemplateJson(*listed);
    return JsonLines(templates) + '\n';
}

} // namespace schedules::host
