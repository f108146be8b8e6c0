#include "host/files/TableFile.h"

#include "host/files/DirtyCells.h"
#include "host/files/XmlFile.h"

#include <QFileInfo>

#include <utility>

namespace schedules::host {

TableFile::TableFile(const QString& fileName) : m_name(fileName), m_xml(ReadXmlFile(fileName)) {}

QString TableFile::ShortName() const
{
    return QFileInfo(m_name).fileName();
}

int TableFile::Save(const QString& xml)
{
    WriteXmlFile(m_name, xml);
    const QString before = std::exchange(m_xml, xml);
    return NewlyDirtyCells(before, m_xml);
}

} // namespace schedules::host
