#include "fuzz/EditingWalk.h"

#include "common/XmlDocument.h"
#include "fuzz/WalkDocuments.h"
#include "support/SheetDrawing.h"

#include <QClipboard>

#include <algorithm>
#include <array>

namespace schedules::testing {

namespace {

constexpr std::array kKeys{
    std::pair('<', Qt::Key_Left),   std::pair('>', Qt::Key_Right),    std::pair('^', Qt::Key_Up),
    std::pair('_', Qt::Key_Down),   std::pair('[', Qt::Key_Home),     std::pair(']', Qt::Key_End),
    std::pair('(', Qt::Key_PageUp), std::pair(')', Qt::Key_PageDown), std::pair('\n', Qt::Key_Return),
    std::pair('\t', Qt::Key_Tab),   std::pair('`', Qt::Key_Backtab),  std::pair('!', Qt::Key_Escape),
    std::pair('=', Qt::Key_F2),     std::pair('#', Qt::Key_Delete),   std::pair('~', Qt::Key_Backspace)};

/// Letters of other scripts and directions, marks, blanks, half characters, and what XML cannot hold.
constexpr std::array<char16_t, 16> kSeldomTyped{u'ж',   u'水',  0x0301, 0x05D0, 0x200F, 0x00A0, 0x2028, 0xD83D,
                                                0xDE00, 0xFFFE, 0xFFFF, 0x001B, 0x0000, 0x007F, 0xFDD0, u'١'};

const std::array kPasted{QStringLiteral("12.5"),
                         QStringLiteral("two\nlines\r\n"),
                         QStringLiteral("a\tb"),
                         QStringLiteral("   "),
                         QStringLiteral("<&>\"' ]]>"),
                         QString(200, u'x'),
                         QString(QChar(0xD83D)),
                         QString(29, u'y') + QString::fromUcs4(U"\U0001F6B0"),
                         QString(QChar(0xFFFE)) + QChar(0) + QChar(1),
                         QStringLiteral("  x  ")};

int Small(unsigned choice)
{
    return static_cast<int>(choice % 8);
}

} // namespace

void EditingWalk::Run()
{
    const QString first = Document();
    Hold(first);
    Show(kScheduleView, first, {300, 200});
    StartModel(first);
    Look();
    while (!AtEnd()) {
        m_boxIsKnown = m_ends = m_escapes = false;
        Step();
        LookAtBox();
        Look();
    }
    Save();
    Look();
}

unsigned EditingWalk::Choice()
{
    return AtEnd() ? 0 : static_cast<unsigned char>(m_script[m_at++]);
}

/// Digits are the documents that are drawn.
QString EditingWalk::Document()
{
    const unsigned choice = Choice();
    return WalkDocument(choice >= '0' && choice <= '9' ? choice - '0' : kDrawnDocuments + choice);
}

void EditingWalk::Step()
{
    static constexpr std::array<std::pair<char, Command>, 26> kCommands{{
        {'A', &EditingWalk::ActivateAgain},  {'B', &EditingWalk::DoubleClickChosen},
        {'C', &EditingWalk::ClickChosen},    {'D', &EditingWalk::TransposeBackAndForth},
        {'E', &EditingWalk::HandBack},       {'F', &EditingWalk::Freeze},
        {'G', &EditingWalk::DragToChosen},   {'H', &EditingWalk::Repaint},
        {'I', &EditingWalk::Compose},        {'J', &EditingWalk::Turn},
        {'K', &EditingWalk::CleanUp},        {'L', &EditingWalk::LoadSchedule},
        {'M', &EditingWalk::LoadSelection},  {'N', &EditingWalk::HandOverAndActivate},
        {'O', &EditingWalk::SortOnce},       {'P', &EditingWalk::Paste},
        {'Q', &EditingWalk::Close},          {'R', &EditingWalk::SortAround},
        {'S', &EditingWalk::Save},           {'T', &EditingWalk::TransposeOnce},
        {'U', &EditingWalk::Continue},       {'V', &EditingWalk::Deactivate},
        {'W', &EditingWalk::ChangeViewType}, {'X', &EditingWalk::HandOver},
        {'Y', &EditingWalk::ToggleFailing},  {'Z', &EditingWalk::Resize},
    }};
    const unsigned character = Choice();
    if (character == '+' || character == '*') {
        m_modifiers |= character == '+' ? Qt::ShiftModifier : Qt::ControlModifier;
        return;
    }
    const auto command = std::ranges::find(kCommands, static_cast<char>(character), &std::pair<char, Command>::first);
    if (command != kCommands.end())
        (this->*command->second)();
    else
        TypeCharacter(character);
    m_modifiers = {};
}

void EditingWalk::TypeCharacter(unsigned character)
{
    const auto key = std::ranges::find(kKeys, static_cast<char>(character), &std::pair<char, Qt::Key>::first);
    if (key != kKeys.end())
        return Press(key->second);
    const QString text(character < 0x80 ? QChar(character) : QChar(kSeldomTyped[character % kSeldomTyped.size()]));
    const int code = character < 0x80 ? QChar::toUpper(character) : Qt::Key_unknown;
    QKeyEvent press(QEvent::KeyPress, code, m_modifiers, m_modifiers & Qt::ControlModifier ? QString() : text);
    SendToBox(press);
    QApplication::sendEvent(Box()->isVisible() ? static_cast<QWidget*>(Box()) : Spread(), &press);
}

/// The user stays in the grid: what other widgets do with keys is not looked at here.
void EditingWalk::Press(Qt::Key key)
{
    if (Focus() != Box())
        Spread()->setFocus();
    SendToBox(QKeyEvent(QEvent::KeyPress, key, m_modifiers));
    QTest::keyClick(Focus(), key, m_modifiers);
}

void EditingWalk::SendToBox(const QKeyEvent& key)
{
    static constexpr std::array kEnding{Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down};
    const bool isPlain = !(key.modifiers() & Qt::ControlModifier);
    m_escapes = isPlain && key.key() == Qt::Key_Escape;
    m_ends = m_escapes || (isPlain && std::ranges::count(kEnding, key.key()));
    m_boxIsKnown = m_edit && Focus() == Box() && m_box.Press(key);
}

/// The middle of a cell as far as it is seen.
std::optional<QPoint> EditingWalk::ChosenPoint()
{
    const int column = Small(Choice());
    const int row = Small(Choice());
    const QRect seen = Spread()->TheSheet() ? Spread()->SeenRect(At(column, row)) : QRect();
    return seen.isEmpty() ? std::nullopt : std::optional(seen.center());
}

void EditingWalk::ClickChosen()
{
    if (const auto point = ChosenPoint())
        QTest::mouseClick(Spread()->viewport(), Qt::LeftButton, m_modifiers, *point);
}

void EditingWalk::DoubleClickChosen()
{
    if (const auto point = ChosenPoint())
        QTest::mouseDClick(Spread()->viewport(), Qt::LeftButton, m_modifiers, *point);
}

void EditingWalk::DragToChosen()
{
    const auto from = ChosenPoint();
    const auto to = ChosenPoint();
    if (!from || !to)
        return;
    m_model.reset(); // a sweep over check boxes changes more than one
    QTest::mousePress(Spread()->viewport(), Qt::LeftButton, m_modifiers, *from);
    QTest::mouseMove(Spread()->viewport(), *to);
    QTest::mouseRelease(Spread()->viewport(), Qt::LeftButton, m_modifiers, *to);
}

void EditingWalk::Paste()
{
    QGuiApplication::clipboard()->setText(kPasted[Choice(kPasted.size())]);
    m_modifiers = Qt::ControlModifier;
    Press(Qt::Key_V);
    m_modifiers = {};
}

void EditingWalk::Compose()
{
    const QString& text = kPasted[Choice(kPasted.size())];
    QInputMethodEvent event(text, {});
    if (Choice(2) == 0)
        event.setCommitString(text);
    if (!Box()->isVisible())
        return;
    if (m_edit)
        m_edit->composed = true;
    QApplication::sendEvent(Box(), &event);
}

void EditingWalk::Turn()
{
    const int turned = Choice(2) == 0 ? 120 : -120;
    const QPoint middle = Spread()->viewport()->rect().center();
    QWheelEvent event(middle, Spread()->viewport()->mapToGlobal(middle), {}, {Choice(2) == 0 ? 0 : turned, turned},
                      Qt::NoButton, m_modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Spread()->viewport(), &event);
}

void EditingWalk::Resize()
{
    static constexpr std::array kSizes{QSize(60, 60), QSize(300, 200), QSize(900, 400), QSize(1800, 900)};
    view.resize(kSizes[Choice(kSizes.size())]);
}

void EditingWalk::TransposeBackAndForth()
{
    const auto twice = [this] {
        TransposeOnce();
        TransposeOnce();
    };
    twice(); // edits are laid out with the first load
    const std::string once = DrawnWhole();
    twice();
    EXPECT_EQ(DrawnWhole(), once);
}

/// Sorting by one column goes round in three steps, one of which is the document's order.
void EditingWalk::SortAround()
{
    if (!TheSheet() || TheSheet()->ActiveCell().column < Column(1) || view.SchedOrientation() != 0)
        return;
    std::vector<std::string> orders;
    for (int step = 0; step < 6; ++step) {
        SortOnce();
        orders.push_back(RowsShown());
    }
    EXPECT_TRUE(std::equal(orders.begin(), orders.begin() + 3, orders.begin() + 3));
    EXPECT_TRUE(std::ranges::find(orders, RowsInOrder()) != orders.end());
}

void EditingWalk::Close()
{
    user.answers = {std::array{Answer::Yes, Answer::No, Answer::Cancel}[Choice(3)]};
    QTest::mouseClick(Button("cmdCancel"), Qt::LeftButton);
    user.answers.clear();
}

void EditingWalk::Continue()
{
    QTest::mouseClick(Button("cmdContinue"), Qt::LeftButton);
}

void EditingWalk::ActivateAgain()
{
    if (m_waiting)
        return TakeIn(*m_waiting);
    user.boxes.clear();
    view.IToolUI_Activate();
    if (!user.boxes.empty())
        m_model.reset();
}

void EditingWalk::HandOver()
{
    // It waits, or takes the place of the same table.
    m_model.reset();
    m_waiting = Document();
    view.IToolUI_XML(*m_waiting);
}

void EditingWalk::HandBack()
{
    if (!m_handedOver.isEmpty())
        TakeIn(m_handedOver);
}

void EditingWalk::LoadSchedule()
{
    const QString xml = Document();
    Hold(xml);
    if (view.LoadScheduleData(xml))
        StartModel(xml);
}

void EditingWalk::LoadSelection()
{
    const QString xml = Document();
    Hold(xml);
    view.LoadSelectionData(xml);
}

void EditingWalk::CleanUp()
{
    m_model.reset();
    view.CleanUP();
}

void EditingWalk::Freeze()
{
    static constexpr std::array kCounts{0, 1, 2, 7, -1, 1'000'000};
    view.setProperty("RowsFrozen", kCounts[Choice(kCounts.size())]);
    view.setProperty("ColsFrozen", kCounts[Choice(kCounts.size())]);
}

void EditingWalk::ChangeViewType()
{
    m_model.reset();
    view.setProperty("ViewType", std::array{kScheduleView, kSelectorView, 7}[Choice(3)]);
    view.setProperty("SelectAllTags", Choice(2) == 0);
}

void EditingWalk::ToggleFailing()
{
    const QString save = QStringLiteral("UpdateTagScheduleData");
    if (!host.failing.remove(save))
        host.failing.insert(save);
}

void EditingWalk::TakeIn(const QString& xml)
{
    Deactivate();
    Hold(xml);
    user.boxes.clear();
    Activate(xml);
    if (user.boxes.empty())
        StartModel(xml);
}

void EditingWalk::Hold(const QString& xml)
{
    m_model.reset();
    m_waiting.reset();
    m_holdsXml = static_cast<bool>(XmlDocument::FromText(xml));
}

void EditingWalk::StartModel(const QString& xml)
{
    const bool isKnown = HasData() && IsFlatSchedule(xml);
    if (view.property("ViewType") == kScheduleView && isKnown)
        m_model.emplace(xml, *TheSheet());
}

void EditingWalk::Look()
{
    if (TheSheet()) {
        ExpectInsideTheGrid();
        ExpectAllRowsOnce();
        EXPECT_NE(Edit(), "nowhere");
    }
    if (m_model)
        m_model->See(*TheSheet());
    LookAtMessages();
    if (!m_model)
        return;
    m_model->ExpectMarked(*TheSheet());
    EXPECT_EQ(Dirty(), m_model->HasUnsaved());
    // There are no tools before the first activation that shows its document.
    if (const QAction* save = Tool("btnSaveTag"))
        EXPECT_EQ(save->isEnabled(), view.HasUnsavedEdits());
}

/// The box holds what was typed, and a cell what its box held.
void EditingWalk::LookAtBox()
{
    const Sheet* sheet = TheSheet();
    const bool isOpen = sheet && Box()->isVisible();
    const auto place = sheet ? sheet->TablePlaceOf(sheet->ActiveCell()) : Sheet::TablePlace();
    const bool goesOn = isOpen && m_edit && m_edit->place == place && !m_ends;
    const bool isKnown = m_edit && !m_edit->composed;
    if (goesOn && isKnown && m_boxIsKnown) {
        EXPECT_EQ(Box()->text(), m_box.Text());
    } else if (!goesOn && isKnown && m_model)
        ExpectCommitted();
    if (isOpen && !goesOn)
        m_edit = OpenEdit{place, sheet->Text(sheet->ActiveCell())};
    else if (!isOpen)
        m_edit.reset();
    if (isOpen)
        m_box.Copy(*Box());
}

void EditingWalk::ExpectCommitted() const
{
    const Sheet& sheet = *TheSheet();
    const bool isChanged = !m_escapes && m_box.Text() != m_edit->previous;
    EXPECT_EQ(sheet.Text(sheet.CellAt(m_edit->place)), isChanged ? m_box.Committed() : m_edit->previous);
}

void EditingWalk::LookAtMessages()
{
    for (; m_heard < host.sent.size(); ++m_heard) {
        const auto& message = host.sent[m_heard].message;
        ASSERT_TRUE(message);
        if (message->name != QLatin1String("UpdateTagScheduleData"))
            continue;
        m_handedOver = message->parameters.Items()[1].value.toString();
        EXPECT_EQ(static_cast<bool>(XmlDocument::FromText(m_handedOver)), m_holdsXml);
        if (!m_model)
            continue;
        m_model->ExpectHandedOver(m_handedOver, *TheSheet());
        if (!host.failing.contains(message->name))
            m_model->SetSaved();
    }
}

void EditingWalk::ExpectInsideTheGrid() const
{
    const Sheet& sheet = *TheSheet();
    const CellRange whole{At(0, 0), At(sheet.ColumnCount(), sheet.RowCount())};
    EXPECT_TRUE(whole.Contains(sheet.ActiveCell())) << Active() << " of " << DrawnSize(sheet) << " at " << m_at;
    EXPECT_TRUE(whole.Contains(Spread()->Selection().first) && whole.Contains(Spread()->Selection().last));
}

void EditingWalk::ExpectAllRowsOnce() const
{
    std::set<int> rows;
    for (int position = 1; position <= TheSheet()->RowCount(); ++position) {
        const int row = TheSheet()->Rows().ItemAt(position);
        EXPECT_EQ(TheSheet()->Rows().PositionOf(row), position);
        rows.insert(row);
    }
    EXPECT_EQ(std::ssize(rows), TheSheet()->RowCount());
    EXPECT_TRUE(rows.empty() || (*rows.begin() == 1 && *rows.rbegin() == TheSheet()->RowCount()));
}

std::string EditingWalk::DrawnWhole() const
{
    const Sheet& sheet = *TheSheet();
    return Drawn(sheet) + DrawnBold(sheet) + DrawnColors(sheet) + DrawnTypes(sheet) + DrawnHAlign(sheet) +
           DrawnVAlign(sheet) + DrawnHidden(sheet) + DrawnWidths(sheet) + Frozen() + Active();
}

std::string EditingWalk::RowsShown() const
{
    std::string rows;
    for (int position = 1; position <= TheSheet()->RowCount(); ++position)
        rows += std::to_string(TheSheet()->Rows().ItemAt(position)) + " ";
    return rows;
}

std::string EditingWalk::RowsInOrder() const
{
    std::string rows;
    for (int row = 1; row <= TheSheet()->RowCount(); ++row)
        rows += std::to_string(row) + " ";
    return rows;
}

} // namespace schedules::testing
