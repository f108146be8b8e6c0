// Applying, saving, deleting and closing.

#include "common/Blanks.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "tools/options/Guarded.h"
#include "tools/options/saving/HostTemplateList.h"
#include "tools/options/saving/TemplateFolder.h"
#include "tools/options/saving/TemplateRoot.h"

#include <QComboBox>
#include <QScrollBar>

#include <algorithm>

namespace schedules {

namespace {

QString TextIn(const CProperties& properties, const char* name, const QString& otherwise)
{
    const auto property = properties.Item(QLatin1String(name));
    return property ? TextOf(property->Value()) : otherwise;
}

/// Runs a step whose errors bear the name of its procedure.
template <std::invocable Step>
auto WithSource(const QString& source, Step&& step)
{
    try {
        return step();
    } catch (const Error& error) {
        const QString known = error.Source();
        throw Error(error.Number(), error.Description(), known.isEmpty() ? source : known, error.SystemCode());
    }
}

QString CategoryNameOf(const CTemplate& listed)
{
    const auto category = listed.Category();
    return category ? category->Name() : QString();
}

} // namespace

int ctlSchedOptions::ApplyChanges()
{
    return Guarded(__func__, static_cast<int>(kStopped), [this] {
        const auto current = m_state.currentTemplate;
        if (m_form.cboTemplates->count() == 0 || m_form.cboTemplates->currentIndex() < 0 || !current)
            return static_cast<int>(kNothingToApply);
        WrittenTemplate written = Written(*current);
        if (written.xml.isEmpty())
            return static_cast<int>(kStopped); // why has been told
        if (current->Dirty()) {
            const int result = current->Protected() ? SaveTemplateAs(&written) : SaveInPlace(written);
            if (result != kApplied)
                return result;
        }
        Ask(Request(u"SETCURRENTSCHEDTEMPLATE", {written.xml, written.fileName}));
        return static_cast<int>(kApplied);
    });
}

/// What is saved of a template as it is. A file that lacks the texts gets none; the host's list knows them, too.
ctlSchedOptions::WrittenTemplate ctlSchedOptions::Written(const CTemplate& current)
{
    const QPointer<QWidget> alive(this);
    const auto held = m_state.currentTemplate; // failures are shown, and that may be the end of the editor
    const QString xml = current.ObjectToXML();
    RequireAlive(alive);
    const CProperties& properties = current.Properties();
    return {xml, TextIn(properties, "Name", current.Name()), TextIn(properties, "DisplayName", current.Name()),
            TextIn(properties, "Category", CategoryNameOf(current)), current.Filename()};
}

int ctlSchedOptions::SaveInPlace(const WrittenTemplate& written)
{
    return MayOverwrite() ? SaveTemplateEx(written, true) : static_cast<int>(kStopped);
}

/// Asks before something is lost that the user has not seen.
bool ctlSchedOptions::MayOverwrite()
{
    const auto current = m_state.currentTemplate;
    const char* question = nullptr;
    if (current->ReadInPart())
        question =
            "The file of this template could only be read in part. Saving it drops what could not be read. Save?";
    else if (current->FileDiffers())
        question = "The file of this template was changed after it had been read. Saving it drops that change. Save?";
    if (!question)
        return true;
    return Tell({ComponentText(question), kYesNo | kQuestion, LoadResString(kSaveTemplateTitle), 0,
                 current->Filename()}) == Answer::Yes;
}

/// Writes the template as it is (`asItIs`), or with the given texts on its root, in place of a file of that name, and
/// puts it into the host's list. Throws what its caller is to tell.
int ctlSchedOptions::SaveTemplateEx(const WrittenTemplate& written, bool asItIs)
{
    return WithSource(Qualified(__func__), [&] {
        RequireComplete(written);
        const auto current = m_state.currentTemplate;
        const bool isListed = HostTemplateList(GetAllTemplates()).Has(written.fileName);
        if (isListed && current->Protected()) {
            const int number = kTemplateProtected;
            Tell({LoadResString(number), kInformation, LoadResString(kSaveTemplateTitle), number});
            return static_cast<int>(kStopped);
        }
        WriteFile(written, asItIs);
        UpdateHostList(written, current->Pdsg());
        ReloadAndSelect(written.fileName);
        return static_cast<int>(kApplied);
    });
}

void ctlSchedOptions::WriteFile(const WrittenTemplate& written, bool asItIs) const
{
    const TemplateFolder folder(m_builderPath);
    if (!asItIs)
        folder.RequireDeletable(written.fileName);
    folder.Replace(written.fileName, FileText(written, asItIs).toUtf8());
}

void ctlSchedOptions::UpdateHostList(const WrittenTemplate& written, const QString& pdsg)
{
    HostTemplateList list(GetAllTemplates());
    list.Put(written.fileName, written.name, pdsg);
    UpdateScheduleServiceConfigFile(list.ToText());
}

QString ctlSchedOptions::FileText(const WrittenTemplate& written, bool asItIs)
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

void ctlSchedOptions::RequireComplete(const WrittenTemplate& written) const
{
    if (!m_state.currentTemplate)
        throw SaveError(kNoCurrentTemplate);
    for (const QString& text : {written.name, written.displayName, written.category, written.fileName}) {
        if (TrimmedOfBlanks(text).isEmpty())
            throw SaveError(kTemplateTextMissing);
    }
    if (!TemplateFolder(m_builderPath).IsKnown())
        throw SaveError(kTemplateFolderUnknown);
}

void ctlSchedOptions::UpdateScheduleServiceConfigFile(const QString& configXml)
{
    Ask(Request(u"UPDATESCHEDCONFIG", {configXml}));
}

/// Everything is asked for anew; what was looked at before is looked at afterwards, as far as it is there.
void ctlSchedOptions::ReloadAndSelect(const QString& fileName, const QString& deletedCategory)
{
    const Place place = CurrentPlace();
    m_state.ForgetTemplate();
    m_form.cboTemplates->clear();
    m_form.lstGroups->Clear();
    SetCurrentGroup(-1);
    ShowTemplateCaption();
    m_state.loaded = false;
    const QPointer<QWidget> alive(this);
    IToolUI_Activate();
    RequireAlive(alive);
    const int id = fileName.isEmpty() ? DefaultTemplateID(deletedCategory) : SavedTemplateID(fileName);
    if (id > 0 && LoadNewTemplate(id))
        SelectTemplateEntry(id);
    ReturnTo(place);
}

int ctlSchedOptions::SavedTemplateID(const QString& fileName) const
{
    const auto templates = Catalogue().NewEnum();
    const auto exact = std::ranges::find(templates, fileName, [](const auto& each) { return each->Filename(); });
    return exact != templates.end() ? (*exact)->ID() : Catalogue().TemplateIDFromFileName(fileName);
}

/// After a template was deleted: the default template of its category, or any, or what the host's list calls the
/// default of the category; -1 to stay with what the host uses.
int ctlSchedOptions::DefaultTemplateID(const QString& category) const
{
    const auto templates = Catalogue().NewEnum();
    const auto first = [&](auto&& isWanted) {
        const auto found = std::ranges::find_if(templates, isWanted);
        return found == templates.end() ? -1 : (*found)->ID();
    };
    const auto isOfCategory = [&](const auto& each) {
        return CategoryNameOf(*each).compare(category, Qt::CaseInsensitive) == 0;
    };
    const int ofCategory = first([&](const auto& each) { return each->IsDefaultTemplate() && isOfCategory(each); });
    if (ofCategory > 0)
        return ofCategory;
    const int any = first([](const auto& each) { return each->IsDefaultTemplate(); });
    return any > 0 ? any : first([&](const auto& each) { return each->DefaultForCategory() && isOfCategory(each); });
}

ctlSchedOptions::Place ctlSchedOptions::CurrentPlace() const
{
    return {m_state.currentGroup ? m_state.currentGroup->Name() : QString(),
            m_state.currentElement ? m_state.currentElement->Name() : QString(),
            m_form.lstGroups->verticalScrollBar()->value(), m_form.lstItems->verticalScrollBar()->value()};
}

void ctlSchedOptions::ReturnTo(const Place& place)
{
    Reselect(place);
    m_form.lstGroups->verticalScrollBar()->setValue(place.groupsTop); // selecting has scrolled
    m_form.lstItems->verticalScrollBar()->setValue(place.itemsTop);
}

void ctlSchedOptions::Reselect(const Place& place)
{
    if (!m_state.currentTemplate)
        return;
    const auto group = m_state.currentTemplate->Groups().Item(place.group);
    if (!group || m_form.lstGroups->RowOf(group->ID()) < 0)
        return;
    SetCurrentGroup(m_form.lstGroups->RowOf(group->ID()));
    const auto element = group->Elements().Item(place.item);
    if (!element || m_form.lstItems->RowOf(element->ID()) < 0)
        return;
    m_form.lstItems->SetCurrentRow(m_form.lstItems->RowOf(element->ID()));
    lstItems_Click();
}

/// The file goes first; what is gone already is no failure. Nothing is sent when it stays.
bool ctlSchedOptions::DeleteTemplate()
{
    return Guarded(__func__, false, [this] {
        const auto current = m_state.currentTemplate;
        WithSource(Qualified("DeleteTemplate"), [&] { TemplateFolder(m_builderPath).Delete(current->Filename()); });
        Ask(Request(u"REMOVECONFIGENTRY", {current->Filename()}));
        Catalogue().Remove(current->Name());
        return true;
    });
}

void ctlSchedOptions::cmdDelete_Click()
{
    Guarded(__func__, [this] {
        const auto current = m_state.currentTemplate;
        const QString shown = TrimmedOfBlanks(m_form.cboTemplates->currentText());
        const QString title = LoadResString(kDeleteTemplateTitle);
        if (!current || m_form.cboTemplates->currentIndex() < 0)
            return;
        if (current->DefaultForCategory())
            Tell({LoadResString(kDefaultTemplateWarning), kInformation, title, kDefaultTemplateWarning, shown});
        const MessageBox question{LoadResString(kDeleteTemplateQuestion), kYesNo, title, kDeleteTemplateQuestion,
                                  shown};
        const bool isWanted = Tell(question) == Answer::Yes && current == m_state.currentTemplate;
        if (isWanted && DeleteTemplate())
            ReloadAndSelect({}, CategoryNameOf(*current));
    });
}

void ctlSchedOptions::UnloadUserControl()
{
    Guarded(__func__, [this] {
        const QPointer<QWidget> alive(this);
        SendEventToOwner(Event(u"UnloadScheduleOptions", {QStringLiteral("True")}));
        RequireAlive(alive);
    });
}

void ctlSchedOptions::cmdApply_Click()
{
    ApplyChanges();
}

void ctlSchedOptions::cmdOK_Click()
{
    if (ApplyChanges() != kStopped)
        UnloadUserControl();
}

void ctlSchedOptions::cmdCancel_Click()
{
    UnloadUserControl();
}

void ctlSchedOptions::cmdSaveAs_Click()
{
    SaveTemplateAs();
}

} // namespace schedules
