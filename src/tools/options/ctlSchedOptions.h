#pragma once

#include "framework/ITemplateEditor.h"
#include "tools/ToolControl.h"

#include <memory>

namespace schedules {

struct EditorRooms;

/// The options editor: the user picks a schedule template, orders, shows, hides and renames its groups and data items,
/// and applies, saves, saves as and deletes templates. The host follows message by message.
///
/// A host drives it through `IToolUI` and `ITemplateEditor`. What `IToolUI_XML` hands over is kept and not used;
/// everything that the editor shows it asks the host for. Whatever a host does in its answer, also deleting the editor,
/// ends what was under way.
///
/// It only says who is called when; the work is done in its rooms.
class ctlSchedOptions : public ToolControl, public ITemplateEditor
{
    Q_OBJECT
    Q_INTERFACES(schedules::ITemplateEditor)

    /// Whether the current template has edits that are not saved.
    Q_PROPERTY(bool HasUnsavedEdits READ HasUnsavedEdits NOTIFY HasUnsavedEditsChanged)

public:
    /// Without a user interface the desktop's is used; one that is given must outlive the editor.
    explicit ctlSchedOptions(UserInterface* userInterface = nullptr);
    ~ctlSchedOptions() override;

    void IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner) override;
    void IToolUI_XML(const QString& sData) override;
    void IToolUI_Activate() override;
    void IToolUI_Deactivate(bool bCancel) override;

    QString TemplateFile() const override;
    bool ChooseTemplate(const QString& fileName) override;
    bool SelectGroup(const QString& name) override;
    bool SelectItem(const QString& name) override;
    QStringList ItemNames() const override;
    bool HasUnsavedEdits() const override;
    bool Apply() override;
    bool Cancel() override;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// `HasUnsavedEdits` has changed, when all is done that changed it. The receiver may delete the editor.
    void HasUnsavedEditsChanged();

protected:
    bool ObtainResourceModule() override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ConnectTemplates();
    void ConnectLists();
    void ConnectNameEditor();
    void ConnectButtons();

    // The way in of the user and the host: what they want ends here, whatever happens.
    template <std::invocable Body>
    void Entered(Body&& body) noexcept;
    template <std::invocable Body>
    bool EnteredWith(Body&& body) noexcept;
    template <class Sender, class Signal, class Room>
    void Enter(Sender* sender, Signal signal, Room& room, void (Room::*procedure)());

    void EnableControls();
    void EnableMoving();
    void TellUnsavedEdits() noexcept;

    void cmdApply_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdSaveAs_Click();
    void UnloadUserControl();

    std::unique_ptr<EditorRooms> m_rooms;
    QString m_xml;
    bool m_toldUnsavedEdits = false;
};

} // namespace schedules
