#include "tools/options/saveas/SavingAs.h"

#include "common/Blanks.h"
#include "common/Module1.h"
#include "common/StringNumbers.h"
#include "common/XmlDocument.h"
#include "common/modResource.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/saveas/frmSaveAs.h"
#include "tools/options/saving/TemplateFiles.h"
#include "tools/options/saving/TemplateSaving.h"

#include <QPointer>
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

SavingAs::SavingAs(const EditorContext& editor, const TemplateCatalogue& catalogue, TemplateSaving& saving,
                   QWidget& parent)
    : m_editor(editor), m_catalogue(catalogue), m_saving(saving), m_parent(parent)
{
}

int SavingAs::SaveTemplateAs(WrittenTemplate* saved)
{
    return m_editor.host.Guarded(__func__, static_cast<int>(kStopped), [&] {
        const auto current = m_editor.state.currentTemplate;
        if (!current)
            return static_cast<int>(kStopped);
        auto written = AskForName();
        if (!written)
            return static_cast<int>(kStopped);
        written->xml = Written(current, m_editor.host).xml;
        if (written->xml.isEmpty())
            return static_cast<int>(kStopped);
        const QString text = FileText(*written, false);
        const int result = m_saving.SaveTemplateEx(*written, false);
        if (saved)
            *saved = *written, saved->xml = text;
        return result;
    });
}

/// Shows the dialog until the user cancels or there is nothing to be said against what they chose.
std::optional<WrittenTemplate> SavingAs::AskForName()
{
    const QPointer dialog = new frmSaveAs(m_editor.host.Ui(), &m_parent);
    const auto unload = qScopeGuard([&] { delete dialog; });
    FillDialog(*dialog);
    for (;;) {
        m_editor.host.Life().WhileActive([&] { return dialog->exec(); });
        if (!dialog || !dialog->OK())
            return std::nullopt;
        const WrittenTemplate chosen{
            {}, dialog->NewName(), dialog->DisplayName(), dialog->Category(), dialog->ProposedFileName()};
        const QString objection = dialog->HasCategory() ? ObjectionTo(chosen) : ComponentText("Choose a category.");
        if (objection.isEmpty())
            return chosen;
        m_editor.host.Show({objection, kExclamation, LoadResString(kSaveTemplateAsTitle)});
        dialog->KeepFields(objection);
    }
}

void SavingAs::FillDialog(frmSaveAs& dialog) const
{
    const auto current = m_editor.state.currentTemplate;
    AddCategories(dialog, m_catalogue.TemplateCategories());
    dialog.SetTitleBarCaption(LoadResString(kSaveTemplateAsTitle));
    if (current->DefaultForCategory())
        dialog.SetDefaultName(QStringLiteral("Untitled"));
    else if (const auto displayName = current->Properties().Item(QStringLiteral("DisplayName")))
        dialog.SetDefaultName(TextOf(displayName->Value()));
    dialog.SetFilePath(FolderPathWithSeparator(m_catalogue.Folder()));
    if (const auto category = current->Category())
        dialog.SetCategory(category->Name());
}

QString SavingAs::ObjectionTo(const WrittenTemplate& chosen) const
{
    if (!TemplateFiles(m_catalogue.Folder()).Holds(chosen.fileName))
        return ComponentText("A file in the template folder cannot have this name.");
    const auto known = m_catalogue.Templates().Item(TrimmedOfBlanks(chosen.name));
    if (known && known->Filename() != chosen.fileName)
        return ComponentText("There is a template of this name already, in a file of another name.");
    return {};
}

} // namespace schedules
