#include "tools/options/saving/TemplateRoot.h"

#include "common/KeyedCollection.h"
#include "common/XmlDocument.h"

#include <algorithm>

namespace schedules {

namespace {

/// Gives the name to the first attribute of which it is a variant. Another one that has it already takes the name that
/// becomes free.
void RenameVariant(const XmlNode& root, const QString& name)
{
    auto attributes = root.Select(QStringLiteral("@*"));
    const auto variant = std::ranges::find(attributes, FoldedKey(name),
                                           [](const XmlNode& attribute) { return FoldedKey(attribute.Name()); });
    if (variant == attributes.end())
        return;
    const auto exact = std::ranges::find(attributes, name, &XmlNode::Name);
    if (exact != attributes.end())
        exact->Rename(variant->Name());
    variant->Rename(name);
}

void SetAttributes(XmlNode root, std::initializer_list<RootAttribute> attributes)
{
    for (const RootAttribute& attribute : attributes) {
        RenameVariant(root, attribute.name);
        root.SetAttribute(attribute.name, attribute.value);
    }
}

} // namespace

QString WithRootAttributes(const QString& templateXml, std::initializer_list<RootAttribute> attributes)
{
    const auto document = XmlDocument::FromText(templateXml);
    const XmlNode root = document.SelectOne(QStringLiteral("/Template"));
    if (!root)
        throw SaveError(kTemplateNotParsable);
    try {
        SetAttributes(root, attributes);
    } catch (const Error&) {
        throw Error(kSaveError, ComponentText("A text of the template has a character that cannot be saved."));
    }
    return document.Node().ToText().trimmed();
}

} // namespace schedules
