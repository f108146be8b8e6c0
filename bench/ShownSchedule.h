#pragma once

#include "Documents.h"
#include "Quiet.h"
#include "framework/IMsgRouter.h"
#include "tools/schedule/ctlSchedule.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace schedules::bench {

/// A host that has no texts and answers nothing.
class SilentHost : public IMsgRouter
{
public:
    QString Send(const Envelope& envelope) override
    {
        const auto message = ParseMessage(envelope.body.toString());
        return message && message->name == QLatin1String("GetResourceModule") ? QStringLiteral("0") : QString();
    }
};

/// A schedule in which a user may edit most cells.
inline QString EditableDocument(TableSize size)
{
    return ScheduleDocument(size).replace(QStringLiteral("<TD>"), QStringLiteral("<TD AllowEdit=\"-1\">"));
}

/// The view on a document, shown.
struct ShownSchedule
{
    ShownSchedule(int viewType, const QString& xml)
    {
        view.setProperty("ViewType", viewType);
        view.IToolUI_Initialize(&host, QStringLiteral("Host"));
        view.IToolUI_XML(xml);
        view.IToolUI_Activate();
        view.resize(1200, 800);
        view.show();
    }

    void Press(const char* child, Qt::Key key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(view.findChild<QWidget*>(QLatin1String(child)), &press);
    }

    void Edit(Cell cell, const QString& text)
    {
        view.ShownSheet()->SetActiveCell(cell);
        Press("vaSpread1", Qt::Key_F2);
        view.findChild<QLineEdit*>(QStringLiteral("txtEditCell"))->setText(text);
        Press("txtEditCell", Qt::Key_Return);
    }

    SilentHost host;
    Quiet quiet;
    ctlSchedule view{&quiet};
};

/// As many cells in a table of any size, all over it: a user edits some cells, not all of them.
inline std::vector<Cell> EditedCells(const Sheet& sheet)
{
    constexpr std::size_t kCount = 400;
    const std::vector<Cell> editable =
        sheet.CellsWith([](CellStyle style) { return style.allowEdit && style.type == CellType::StaticText; });
    std::vector<Cell> cells;
    for (std::size_t at = 0; at < kCount; ++at)
        cells.push_back(editable[at * editable.size() / kCount]);
    return cells;
}

} // namespace schedules::bench
