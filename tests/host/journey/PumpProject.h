#pragma once

#include "host/answers/SmallProject.h"
#include "host/schedule/TemplateLayout.h"

#include <QRegularExpression>

namespace schedules::host::testing {

inline const QString kFlow = QStringLiteral("PUMPS/Design/Flow");
inline const QString kHead = QStringLiteral("PUMPS/Design/Head");

/// The only template is "Both", with two data items, of which the user may rename "Head".
inline void PutTemplate(Project& project)
{
    QString text = TemplateWith("Both", {kFlow, kHead});
    text.replace("<Item Name=\"Head\"", "<Item UserDefined=\"-1\" Name=\"Head\"");
    project.MergeTemplates(project.Templates(),
                           {{.name = "Both", .fileName = "Both.xml", .category = "PUMPS", .defaultForCategory = true}},
                           {{"Both.xml", text}});
}

/// Two pumps, and a template for them.
inline void FillWithPumps(Project& project)
{
    project.Put(
        {.categories = {{"PUMPS", "Pumps", "P"}},
         .tags = {{"P-1", "PUMPS"}, {"P-2", "PUMPS"}},
         .items = {{kFlow, "Flow", "Design", "DOUBLE", ""}, {kHead, "Head", "Design", "DOUBLE", "", true, true}},
         .values = {{"P-1", kFlow, "12"}, {"P-2", kFlow, "13"}, {"P-1", kHead, "48"}, {"P-2", kHead, "49"}}});
    PutTemplate(project);
}

/// "Both.xml: Flow, Head". A template that cannot be used throws.
inline QString DrawnTemplate(const Project& project, const TemplateEntry& entry)
{
    const QString text = project.TemplateText(entry.fileName);
    ReadTemplateLayout(text);
    QStringList items;
    static const QRegularExpression item(QStringLiteral("<Item [^>]*DisplayName=\"([^\"]*)\""));
    for (const auto& match : item.globalMatch(text))
        items << match.captured(1);
    return entry.fileName + QStringLiteral(": ") + items.join(QStringLiteral(", "));
}

inline QString DrawnTemplates(const Project& project)
{
    QStringList lines;
    for (const TemplateEntry& entry : project.Templates())
        lines << DrawnTemplate(project, entry);
    return lines.join(u'\n');
}

/// Everything that is stored, a line for each pump with its flow and its head, and one for each template.
inline std::string Drawn(const Project& project)
{
    QStringList lines;
    for (const Tag& tag : project.Tags()) {
        const ValueTable values = project.Values({tag.name}, {kFlow, kHead});
        lines << QStringLiteral("%1: %2, %3").arg(tag.name, values[0][0].text, values[1][0].text);
    }
    lines << DrawnTemplates(project);
    return lines.join(u'\n').toStdString();
}

/// "12 v1"
inline std::string Stored(const Project& project, const QString& tag, const QString& item)
{
    const StoredValue value = project.Values({tag}, {item}).first().first();
    return QStringLiteral("%1 v%2").arg(value.text).arg(value.version).toStdString();
}

} // namespace schedules::host::testing
