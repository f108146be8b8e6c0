#pragma once

#include "fuzz/BoxModel.h"
#include "fuzz/EditModel.h"
#include "tools/EditingTest.h"

#include <QByteArray>

#include <optional>

namespace schedules::testing {

/// A user and a host who do with a view what a script says, and look at what must hold after each step.
///
/// The script's first character is the number of the first document, see `Document`; each further one is a step, some
/// with a choice behind it:
///
///     < > ^ _ [ ] ( )     the arrows, Home, End, Page Up and Page Down; + before a key is Shift, * Control
///     line feed, tab ` ! = # ~    Enter, Tab, back, Escape, F2, Delete, Backspace
///     a capital letter    a command of `kCommands`
///     anything else       is typed; bytes from 0x80 on stand for characters that are seldom typed
class EditingWalk : public EditingTest
{
public:
    explicit EditingWalk(const QByteArray& script) : m_script(script) {}

    void Run();

private:
    using Command = void (EditingWalk::*)();

    void TestBody() override {}

    // Reading the script.
    bool AtEnd() const { return m_at >= m_script.size(); }
    unsigned Choice();
    unsigned Choice(unsigned count) { return Choice() % count; }
    QString Document();

    // What the user does.
    void Step();
    void TypeCharacter(unsigned character);
    void Press(Qt::Key key);
    std::optional<QPoint> ChosenPoint();
    void ClickChosen();
    void DoubleClickChosen();
    void DragToChosen();
    void Paste();
    void Compose();
    void Turn();
    void Resize();

    // What tools and the host do.
    void TransposeOnce() { Click("btnTranspose"); }
    void TransposeBackAndForth();
    void SortOnce() { view.DoColSort(); }
    void SortAround();
    void Save() { Click("btnSaveTag"); }
    void Close();
    void Continue();
    void Deactivate() { view.IToolUI_Deactivate(false); }
    void ActivateAgain();
    void HandOver();
    void HandOverAndActivate() { TakeIn(Document()); }
    void HandBack();
    void LoadSchedule();
    void LoadSelection();
    void CleanUp();
    void Freeze();
    void ChangeViewType();
    void ToggleFailing();
    void Repaint() { Spread()->viewport()->repaint(); }

    void TakeIn(const QString& xml);
    void Hold(const QString& xml);
    void SendToBox(const QKeyEvent& key);
    void StartModel(const QString& xml);
    bool HasData() const { return TheSheet()->DataColumnCount() > 0 && TheSheet()->DataRowCount() > 0; }

    // What must hold.
    void Look();
    void LookAtBox();
    void ExpectCommitted() const;
    void LookAtMessages();
    void ExpectInsideTheGrid() const;
    void ExpectAllRowsOnce() const;
    std::string DrawnWhole() const;
    std::string RowsShown() const;
    std::string RowsInOrder() const;

    QByteArray m_script;
    qsizetype m_at = 0;
    Qt::KeyboardModifiers m_modifiers;
    std::optional<EditModel> m_model; ///< as long as it is known what must be edited
    bool m_holdsXml = false;          ///< the document that the view holds is well-formed
    std::optional<QString> m_waiting; ///< handed over, and not shown yet
    std::size_t m_heard = 0;

    /// An edit that was open before the step.
    struct OpenEdit
    {
        Sheet::TablePlace place;
        QString previous;
        bool composed = false; ///< an input method has had a hand in it, which the model does not know
    };
    std::optional<OpenEdit> m_edit;
    BoxModel m_box;
    bool m_boxIsKnown = false; ///< the step was a key that the model knows
    bool m_ends = false;       ///< the step was a key that ends an edit
    bool m_escapes = false;
    QString m_handedOver;
};

} // namespace schedules::testing
