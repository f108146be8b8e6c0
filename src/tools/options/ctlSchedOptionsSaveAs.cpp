// Saving a template under a new name.

#include "common/Blanks.h"
#include "common/Module1.h"
#include "common/StringNumbers.h"
#include "common/XmlDocument.h"
#include "common/modResource.h"
#include "tools/options/Guarded.h"
#include "tools/options/saveas/frmSaveAs.h"
#include "tools/options/saving/TemplateFolder.h"

#include <QScopeGuard>

namespace schedules {

namespace {

/// Attributes of hosts' lists are found in any letter case.
QString AttributeOf(const XmlNode& node, const QString& name)
{
    for (const XmlNode& attribute : node.Select(QStringLiteral("@*"))) {
        if (attribute.Name().compare(name, Qt::CaseInsensitive) == 0)
            return attribute.WholeText();
    }
    return {};
}

void AddCategories(frmSaveAs& dialog, const QString& categories)
{
    const auto document = XmlDocument::FromText(categories);
    for (const XmlNode& category : document.Select(QStringLiteral("//Category")))
        dialog.AddCategory(QStringLiteral("%1 (%2)").arg(AttributeOf(category, QStringLiteral("name")),
                                                         AttributeOf(category, QStringLiteral("displayname"))));
}

} // namespace

/// Tells what was written, where that is wanted.
int ctlSchedOptions::SaveTemplateAs(WrittenTemplate* saved)
{
    return Guarded(__func__, static_cast<int>(kStopped), [&] {
        const auto current = m_state.currentTemplate;
        if (!current)
            return static_cast<int>(kStopped);
        auto written = AskForName();
        if (!written)
            return static_cast<int>(kStopped);
        written->xml = Written(*current).xml;
        if (written->xml.isEmpty())
            return static_cast<int>(kStopped);
        const QString text = FileText(*written, false);
        const int result = SaveTemplateEx(*written, false);
        if (saved)
            *saved = *written, saved->xml = text;
        return result;
    });
}

/// Shows the dialog until the user cancels or there is nothing to be said against what he chose.
std::optional<ctlSchedOptions::WrittenTemplate> ctlSchedOptions::AskForName()
{
    const QPointer dialog = new frmSaveAs(Ui(), this);
    const auto unload = qScopeGuard([&] { delete dialog; });
    FillDialog(*dialog);
    for (;;) {
        WhileActive([&] { return dialog->exec(); });
        if (!dialog || !dialog->OK())
            return std::nullopt;
        const WrittenTemplate chosen{
            {}, dialog->NewName(), dialog->DisplayName(), dialog->Category(), dialog->ProposedFileName()};
        const QString objection = dialog->HasCategory() ? ObjectionTo(chosen) : ComponentText("Choose a category.");
        if (objection.isEmpty())
            return chosen;
        Tell({objection, kExclamation, LoadResString(kSaveTemplateAsTitle)});
        dialog->KeepFields(objection);
    }
}

void ctlSchedOptions::FillDialog(frmSaveAs& dialog)
{
    const auto current = m_state.currentTemplate;
    AddCategories(dialog, Ask(Request(u"GETTEMPLATECATEGORIES")));
    dialog.SetTitleBarCaption(LoadResString(kSaveTemplateAsTitle));
    if (current->DefaultForCategory())
        dialog.SetDefaultName(QStringLiteral("Untitled"));
    else if (const auto displayName = current->Properties().Item(QStringLiteral("DisplayName")))
        dialog.SetDefaultName(TextOf(displayName->Value()));
    dialog.SetFilePath(FolderPathWithSeparator(m_builderPath));
    if (const auto category = current->Category())
        dialog.SetCategory(category->Name());
}

QString ctlSchedOptions::ObjectionTo(const WrittenTemplate& chosen) const
{
    if (!TemplateFolder(m_builderPath).Holds(chosen.fileName))
        return ComponentText("A file in the template folder cannot have this name.");
    const auto known = Catalogue().Item(TrimmedOfBlanks(chosen.name));
    if (known && known->Filename() != chosen.fileName)
        return ComponentText("There is a template of this name already, in a file of another name.");
    return {};
}

} // namespace schedules
