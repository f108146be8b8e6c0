#include "WindowUser.h"

#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/window/ProjectWindow.h"
#include "support/ModalDialog.h"

#include <QAbstractItemView>
#include <QAction>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>
#include <QWindow>

#include <optional>

namespace schedules::host::testing {

using schedules::testing::OnceModal;

namespace {

constexpr QSize kWindowSize{1400, 820};

void Await(const char* what, const std::function<bool()>& condition)
{
    if (!QTest::qWaitFor(condition))
        throw HostError(QStringLiteral("%1 did not come").arg(QLatin1String(what)));
}

void AwaitFocus(QDialog& dialog)
{
    Await("the focus", [&] { return dialog.isActiveWindow(); });
}

QTreeWidget& Categories(const ProjectWindow& window)
{
    return Part<QTreeWidget>(window, "lstCategories");
}

void EnterName(QDialog& dialog, const QString& fileName)
{
    TypeOver(Part<QLineEdit>(dialog, "fileNameEdit"), fileName);
    Press(Qt::Key_Return);
}

/// The action with that text.
QAction& Caption(const QWidget& in, const QString& text)
{
    for (QAction* action : in.actions()) {
        if (action->text().remove(u'&') == text)
            return *action;
    }
    throw HostError(QStringLiteral("there is no entry %1").arg(text));
}

/// Does something in the dialog that opens while something else is done. What fails there is thrown from here, since
/// no exception passes through a dialog.
template <class Dialog = QDialog, class Opening, class InDialog>
void WithDialog(Opening opening, InDialog inDialog)
{
    std::optional<HostError> failed = HostError(QStringLiteral("no dialog has opened"));
    OnceModal<Dialog>([&](Dialog& dialog) {
        failed.reset();
        try {
            AwaitFocus(dialog);
            inDialog(dialog);
        } catch (const HostError& error) {
            failed = error;
            dialog.reject();
        }
    });
    opening();
    if (failed)
        throw *failed;
}

bool ShowsSelector(const ProjectWindow& window)
{
    return window.View()->Widget().property("ViewType").toInt() == int(host::View::Selector);
}

} // namespace

WindowUser::WindowUser(ProjectWindow& window) : m_window(window)
{
    m_window.resize(kWindowSize);
    m_window.show();
    m_window.activateWindow();
    Await("the window", [&] { return m_window.isActiveWindow() && m_window.windowHandle()->isExposed(); });
}

std::string WindowUser::Entries() const
{
    QStringList lines;
    const QTreeWidget& tree = Categories(m_window);
    for (int index = 0; index < tree.topLevelItemCount(); ++index) {
        const auto* category = tree.topLevelItem(index);
        lines << category->text(0);
        for (int child = 0; child < category->childCount(); ++child)
            lines << QStringLiteral("  ") + category->child(child)->text(0);
    }
    return lines.join(u'\n').toStdString();
}

void WindowUser::ChooseCategory(const QString& displayName)
{
    QTreeWidget& tree = Categories(m_window);
    const auto entries = tree.findItems(displayName + QStringLiteral(" ("), Qt::MatchStartsWith);
    if (entries.isEmpty())
        throw HostError(QStringLiteral("there is no category %1").arg(displayName));
    DoubleClick(*tree.viewport(), tree.visualItemRect(entries.first()).center());
    Await("the selector", [&] { return m_window.View() && ShowsSelector(m_window); });
}

ShownGrid WindowUser::Grid() const
{
    return ShownGrid(m_window.View()->Widget());
}

void WindowUser::Pick(const QStringList& tags)
{
    const ShownGrid grid = Grid();
    const int names = grid.RowOf(QStringLiteral("Tag"));
    const int boxes = grid.RowOf(QStringLiteral("Select"));
    for (const QString& tag : tags) {
        const int column = grid.ColumnWith(tag, names);
        grid.Click(column, boxes);
        if (!grid.Ticked(column, boxes))
            throw HostError(QStringLiteral("%1 cannot be ticked").arg(tag));
    }
    ClickButton(m_window.View()->Widget(), "cmdContinue");
    Await("the schedule", [&] { return !ShowsSelector(m_window); });
}

void WindowUser::Edit(const QString& tag, const QString& item, const QString& text)
{
    const ShownGrid grid = Grid();
    grid.Write(grid.ColumnOf(tag), grid.RowOf(item), text);
}

void WindowUser::ClickTool(const char* key)
{
    const QWidget& view = m_window.View()->Widget();
    auto* action = &Part<QAction>(view, key);
    QWidget* button = Part<QToolBar>(view, "tbTasks").widgetForAction(action);
    if (!button || !action->isEnabled())
        throw HostError(QStringLiteral("the tool %1 cannot be clicked").arg(QLatin1String(key)));
    Await("the tool", [&] { return button->isVisible(); });
    Click(*button, button->rect().topLeft() + QPoint(8, 8)); // beside the arrow of one with a menu
}

void WindowUser::Customize()
{
    if (m_window.Options())
        return;
    ClickTool("btnCustomize");
    Await("the editor", [&] { return m_window.Options() && m_window.Options()->Widget().isVisible(); });
}

void WindowUser::Select(const char* list, const QString& entry)
{
    auto& entries = Part<QAbstractItemView>(m_window.Options()->Widget(), list);
    Click(*entries.viewport(), entries.visualRect(entries.indexAt({2, 2})).center());
    Press(Qt::Key_Home);
    const auto isThere = [&] { return entries.currentIndex().data().toString() == entry; };
    for (int step = 1; !isThere() && step < entries.model()->rowCount(); ++step)
        Press(Qt::Key_Down);
    if (!isThere())
        throw HostError(QStringLiteral("there is no %1 in %2").arg(entry, QLatin1String(list)));
}

void WindowUser::Rename(const QString& group, const QString& item, const QString& name)
{
    Customize();
    Select("lstGroups", group);
    Select("lstItems", u'*' + item);
    const QWidget& editor = m_window.Options()->Widget();
    TypeOver(Part(editor, "txtDisplayName"), name);
    ClickButton(editor, "cmdUpdateUDItemName");
}

void WindowUser::Apply()
{
    ClickButton(m_window.Options()->Widget(), "cmdApply");
}

void WindowUser::SaveAs(const QString& name)
{
    Customize();
    WithDialog([this] { ClickButton(m_window.Options()->Widget(), "cmdSaveAs"); },
               [name](QDialog& dialog) {
                   TypeOver(Part(dialog, "Text1"), name);
                   ClickButton(dialog, "cmdOK");
               });
}

/// The preview closes before the name of the file is asked for.
void WindowUser::PrintToPdf(const QString& fileName)
{
    const auto preview = [this] {
        WithDialog([this] { ClickTool("btnPrint"); },
                   [](QDialog& dialog) { ClickCaption(dialog, QStringLiteral("Save as PDF...")); });
    };
    WithDialog<QFileDialog>(preview, [&](QDialog& dialog) { EnterName(dialog, fileName); });
}

void WindowUser::Export(const QString& fileName)
{
    WithDialog<QFileDialog>([this] { ClickTool("btnExport"); }, [&](QDialog& dialog) { EnterName(dialog, fileName); });
}

void WindowUser::ClickMenu(const QString& menu, const QString& entry)
{
    QMenuBar& bar = *m_window.menuBar();
    Click(bar, bar.actionGeometry(&Caption(bar, menu)).center());
    QMenu& opened = *Caption(bar, menu).menu();
    Await("the menu", [&] { return opened.isVisible(); });
    Click(opened, opened.actionGeometry(&Caption(opened, entry)).center());
}

void WindowUser::Refresh()
{
    ClickMenu(QStringLiteral("File"), QStringLiteral("Refresh"));
}

void WindowUser::LookElsewhere()
{
    QWidget other;
    for (QWidget* window : {&other, static_cast<QWidget*>(&m_window)}) {
        window->show();
        window->activateWindow();
        Await("the window", [&] { return window->isActiveWindow(); });
    }
    QCoreApplication::processEvents();
}

void WindowUser::OpenFile(const QString& fileName)
{
    WithDialog<QFileDialog>([this] { ClickMenu(QStringLiteral("File"), QStringLiteral("Open Project...")); },
                            [&](QDialog& dialog) { EnterName(dialog, fileName); });
}

void WindowUser::OpenServer(const QString& address)
{
    WithDialog<QInputDialog>([this] { ClickMenu(QStringLiteral("File"), QStringLiteral("Open from Server...")); },
                             [&](QDialog& dialog) {
                                 TypeOver(*dialog.findChild<QLineEdit*>(), address);
                                 Press(Qt::Key_Return);
                             });
}

void WindowUser::Quit(const QString& answer)
{
    const auto quit = [this] { ClickMenu(QStringLiteral("File"), QStringLiteral("Quit")); };
    if (answer.isEmpty())
        return quit();
    WithDialog(quit, [&](QDialog& box) { ClickCaption(box, answer); });
}

std::string WindowUser::Told() const
{
    const auto& bar = Part<QLabel>(m_window, "lblMessage");
    return bar.isVisible() ? bar.text().toStdString() : std::string();
}

void WindowUser::CloseMessage()
{
    ClickButton(m_window, "cmdCloseMessage");
}

std::string WindowUser::Status() const
{
    return m_window.statusBar()->currentMessage().toStdString();
}

} // namespace schedules::host::testing
