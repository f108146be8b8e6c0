#include "host/files/DirtyCells.h"

#include <QList>
#include <QSet>
#include <QXmlStreamReader>

#include <utility>

namespace schedules::host {

namespace {

/// Which child of which child an element is, from the root on.
using ElementPath = QList<int>;

using DirtyCell = std::pair<ElementPath, QString>;

class DirtyCellReader
{
public:
    explicit DirtyCellReader(const QString& xml) : m_reader(xml) {}

    QSet<DirtyCell> Read()
    {
        while (!m_reader.atEnd()) {
            const auto token = m_reader.readNext();
            if (token == QXmlStreamReader::StartElement)
                Enter();
            else if (token == QXmlStreamReader::EndElement)
                m_path.removeLast();
        }
        return std::move(m_cells);
    }

private:
    void Enter()
    {
        ++m_path.last();
        if (m_reader.attributes().value(QStringLiteral("Dirty")) == QLatin1String("-1"))
            m_cells.insert({m_path, m_reader.readElementText(QXmlStreamReader::IncludeChildElements)});
        else
            m_path.append(0);
    }

    QXmlStreamReader m_reader;
    ElementPath m_path{0};
    QSet<DirtyCell> m_cells;
};

QSet<DirtyCell> DirtyCellsOf(const QString& xml)
{
    // Most documents have none, and reading a large one takes its time.
    return xml.contains(QLatin1String("Dirty")) ? DirtyCellReader(xml).Read() : QSet<DirtyCell>();
}

} // namespace

int NewlyDirtyCells(const QString& before, const QString& after)
{
    return static_cast<int>(DirtyCellsOf(after).subtract(DirtyCellsOf(before)).size());
}

} // namespace schedules::host
