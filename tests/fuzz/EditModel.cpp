#include "fuzz/EditModel.h"

#include "common/Utf8.h"
#include "common/XmlDocument.h"
#include "grid/CSchedule.h"
#include "support/ScriptedUserInterface.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace schedules::testing {

EditModel::EditModel(const QString& xml, const Sheet& sheet) : m_texts(TextsOf(sheet)), m_dirty(DirtyIn(xml)) {}

void EditModel::See(const Sheet& sheet)
{
    const Texts now = TextsOf(sheet);
    ASSERT_EQ(now.size(), m_texts.size());
    int edits = 0;
    for (const auto& [place, text] : now) {
        if (text == m_texts.at(place))
            continue;
        m_dirty[place] = text;
        m_unsaved.insert(place);
        ++edits;
    }
    EXPECT_LE(edits, 2);
    m_texts = now;
}

void EditModel::ExpectHandedOver(const QString& xml, const Sheet& sheet) const
{
    EXPECT_EQ(Drawn(DirtyIn(xml)), Drawn(m_dirty));
    ScriptedUserInterface user;
    Sheet fresh;
    CSchedule engine(user);
    engine.SetSched(&fresh);
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(Drawn(TextsOf(fresh)), Drawn(TextsOf(sheet)));
}

void EditModel::ExpectMarked(const Sheet& sheet) const
{
    std::set<Place> marked;
    for (const Cell cell : sheet.CellsWith([](CellStyle style) { return style.edited; }))
        marked.insert(sheet.TablePlaceOf(cell));
    EXPECT_EQ(marked.size(), m_unsaved.size());
    EXPECT_TRUE(marked == m_unsaved);
}

EditModel::Texts EditModel::TextsOf(const Sheet& sheet)
{
    Texts texts;
    for (int line = 0; line < sheet.Store().LineCount(); ++line) {
        sheet.Store().ForEachIn(line, [&](int slot, std::string_view text, CellStyle) {
            texts[{line, slot}] = FromUtf8(text);
        });
    }
    return texts;
}

EditModel::Texts EditModel::DirtyIn(const QString& xml)
{
    Texts dirty;
    int line = 0;
    const XmlDocument document = XmlDocument::FromText(xml);
    for (const XmlNode& row : document.Select(QStringLiteral("//TABLE/TR"))) {
        int slot = 0;
        for (const XmlNode& cell : row.Children()) {
            if (cell.Attribute(QStringLiteral("Dirty")) == QLatin1String("-1"))
                dirty[{line, slot}] = cell.FirstText();
            ++slot;
        }
        ++line;
    }
    return dirty;
}

std::string EditModel::Drawn(const Texts& texts)
{
    std::string drawn;
    for (const auto& [place, text] : texts)
        drawn += std::to_string(place.line) + "," + std::to_string(place.slot) + ": " + text.toStdString() + "\n";
    return drawn;
}

} // namespace schedules::testing
