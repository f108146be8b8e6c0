#pragma once

#include "common/GatheredReports.h"
#include "model/CTemplates.h"
#include "tools/ToolControl.h"
#include "tools/options/EditorState.h"
#include "tools/options/OptionsForm.h"

#include <QSet>

namespace schedules {

class frmSaveAs;

/// The options editor: the user picks a schedule template, orders, shows, hides and renames its groups and data items,
/// and applies, saves, saves as and deletes templates. The host follows message by message.
///
/// A host drives it through `IToolUI`. What `IToolUI_XML` hands over is kept and not used; everything that the editor
/// shows it asks the host for. Whatever a host does in its answer, also deleting the editor, ends what was under way.
class ctlSchedOptions : public ToolControl
{
    Q_OBJECT

    /// Whether the current template has edits that are not saved.
    Q_PROPERTY(bool HasUnsavedEdits READ HasUnsavedEdits)

public:
    /// Results of `ApplyChanges`; any other number is passed on from a save.
    enum Applied
    {
        kNothingToApply = 0,
        kApplied = -1,
        kStopped = -2 ///< by the user, by a rule, or by a failure that has been reported
    };

    /// Without a user interface the desktop's is used; one that is given must outlive the editor.
    explicit ctlSchedOptions(UserInterface* userInterface = nullptr);
    ~ctlSchedOptions() override;

    void IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner) override;
    void IToolUI_XML(const QString& sData) override;
    void IToolUI_Activate() override;
    void IToolUI_Deactivate(bool bCancel) override;

    QSize minimumSizeHint() const override { return OptionsForm::kSmallest; }

    bool HasUnsavedEdits() const { return m_state.IsDirty(); }

protected:
    bool ObtainResourceModule() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// A template on its way into a file and the host's list.
    struct WrittenTemplate
    {
        QString xml;
        QString name;
        QString displayName;
        QString category;
        QString fileName;
    };

    /// Where a list was, by names: after a reload its members are other objects.
    struct Place
    {
        QString group;
        QString item;
        int groupsTop = 0;
        int itemsTop = 0;
    };

    void ConnectControls();
    void ConnectNameEditor();

    // The user's way in: what he does ends here, whatever happens.
    template <std::invocable Body>
    void Entered(Body&& body) noexcept;
    // A procedure that tells the host of its failure and goes on with `otherwise`.
    template <class Result, std::invocable Body>
    Result Guarded(const char* procedure, Result otherwise, Body&& body);
    template <std::invocable Body>
    void Guarded(const char* procedure, Body&& body);

    // Asking the host and the user; these do not return into an editor that is gone, and all but `Reply` neither into
    // one that was deactivated meanwhile.
    template <std::invocable Question>
    auto WhileActive(Question&& question);
    QString Reply(const RequestMessage& message);
    QString Ask(const RequestMessage& message);
    Answer Tell(const MessageBox& box);
    QString GetAllTemplates();
    QString GetBuilderPath();

    // The catalogue.
    void Activate();
    void CreateCatalogue(const QString& templateList, const QString& categories);
    CTemplates& Catalogue() const;
    void SelectByFile(const QString& fileName);
    void LoadTemplatesList();
    bool LoadNewTemplate(int templateId);
    bool SetCurrentTemplate(int templateId);
    void SetTemplateDirty(bool dirty);
    int FindTemplateListIndex(int templateId);
    void SelectTemplateEntry(int templateId);
    void cboTemplates_Click();
    void ShowTemplateCaption();
    void EnableControls();

    // Groups and data items.
    void LoadGroupsList();
    void LoadItemsList();
    void ClearItems();
    void SetCurrentGroup(int index);
    void lstGroups_Click();
    void ShowGroup(int row);
    void lstItems_Click();
    void chkShowGroupName_Click();
    void cmdGroupMove_Click(int index);
    void cmdItemMove_Click(int index);
    void MoveGroupObject(int lNewListIndex, int lOldListIndex);
    void MoveElementObject(int lNewListIndex, int lOldListIndex);
    void TakeCheckMark(CProperties& properties, const QString& name, bool checked);
    void EnableMoving();

    // Names of user-defined data items.
    void ShowName(int row);
    void EnableNameEditor(bool enabled);
    void EnableNameButtons(bool enabled);
    void txtDisplayName_Change();
    void txtDisplayName_GotFocus();
    bool txtDisplayName_KeyPress(int key);
    void cmdUpdateUDItemName_Click();
    void cmdResetUDItemName_Click();

    // Saving, deleting, closing.
    int ApplyChanges();
    WrittenTemplate Written(const CTemplate& current);
    int SaveInPlace(const WrittenTemplate& written);
    int SaveTemplateEx(const WrittenTemplate& written, bool asItIs);
    void WriteFile(const WrittenTemplate& written, bool asItIs) const;
    void UpdateHostList(const WrittenTemplate& written, const QString& pdsg);
    int SaveTemplateAs(WrittenTemplate* saved = nullptr);
    std::optional<WrittenTemplate> AskForName();
    void FillDialog(frmSaveAs& dialog);
    QString ObjectionTo(const WrittenTemplate& chosen) const;
    bool MayOverwrite();
    static QString FileText(const WrittenTemplate& written, bool asItIs);
    void RequireComplete(const WrittenTemplate& written) const;
    void UpdateScheduleServiceConfigFile(const QString& configXml);
    bool DeleteTemplate();
    void ReloadAndSelect(const QString& fileName, const QString& deletedCategory = {});
    int DefaultTemplateID(const QString& category) const;
    int SavedTemplateID(const QString& fileName) const;
    Place CurrentPlace() const;
    void ReturnTo(const Place& place);
    void Reselect(const Place& place);
    void UnloadUserControl();
    void cmdApply_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdSaveAs_Click();
    void cmdDelete_Click();

    std::shared_ptr<GatheredReports> m_reports; // outlives the catalogue, whose templates report to it
    std::shared_ptr<CTemplates> m_templates;
    std::shared_ptr<CCategories> m_categories;
    EditorState m_state;
    OptionsForm m_form;
    QString m_xml;
    QString m_builderPath;
    bool m_focusedByMouse = false;
    QSet<int> m_edited; ///< numbers of templates that differ from their files
};

} // namespace schedules
