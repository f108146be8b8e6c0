#pragma once

#include "model/ModelDrawing.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <string>

namespace schedules::testing {

/// Draws a template that was written, with the eyes of another parser.
class OtherReader
{
public:
    explicit OtherReader(const QString& xml) : m_xml(xml) { m_xml.setNamespaceProcessing(false); }

    std::string Drawn()
    {
        QString drawn;
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isStartElement())
                drawn += DrawnStart();
            else if (m_xml.isCharacters())
                drawn += Visible(m_xml.text().toString());
            else if (m_xml.isEndElement() && m_xml.qualifiedName() == u"Location")
                drawn += '\n';
        }
        return (m_xml.hasError() ? m_xml.errorString() : drawn).toStdString();
    }

private:
    QString DrawnStart()
    {
        const QString element = m_xml.qualifiedName().toString();
        QStringList attributes;
        for (const QXmlStreamAttribute& attribute : m_xml.attributes())
            attributes += Visible(attribute.qualifiedName().toString() + "='" + attribute.value().toString() + '\'');
        const QString drawn = attributes.join(' ');
        if (element == "Group")
            m_items = 0;
        return element == "Template" ? drawn + '\n'
               : element == "Group"  ? QString("  %1 ").arg(++m_groups) + Name() + ": " + drawn + '\n'
               : element == "Item"   ? QString("    %1 ").arg(++m_items) + Name() + ": " + drawn
                                     : " -> ";
    }

    QString Name() const
    {
        QString name = m_xml.attributes().value("Name").toString();
        while (name.startsWith(' '))
            name.remove(0, 1);
        while (name.endsWith(' '))
            name.chop(1);
        return Visible(name);
    }

    QXmlStreamReader m_xml;
    int m_groups = 0;
    int m_items = 0;
};

} // namespace schedules::testing
