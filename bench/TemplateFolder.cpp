#include "TemplateFolder.h"

#include <QFile>
#include <QTextStream>

#include <array>

namespace schedules::bench {

namespace {

constexpr std::array kItems{"Flow", "Head", "Power", "Мощность", "Ισχύς", "流量", "Design pressure", "Remarks"};

void WriteItem(QTextStream& xml, int group, int item)
{
    const QString name = QString::fromUtf8(kItems[static_cast<std::size_t>(item) % kItems.size()]);
    xml << "    <Item Name=\"Item" << item << "\" DisplayName=\"" << name << ' ' << item << "\" ShowThisItem=\""
        << (item % 5 == 0 ? "0" : "-1") << "\" DataType=\"DOUBLE\" UserDefined=\"0\">\n"
        << "      <Location>PUMPS/Group" << group << "/Item" << item << "</Location>\n    </Item>\n";
}

void WriteTemplate(const QString& fileName, int number, TemplateFolderSize size)
{
    QFile file(fileName);
    if (!file.open(QFile::WriteOnly))
        qFatal("the benchmark cannot write %s", qPrintable(fileName));
    QTextStream xml(&file);
    xml << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Template Name=\"Template" << number
        << "\" DisplayName=\"Pumps " << number << "\" Category=\"PUMPS\" Version=\"1\" AllowEdit=\"-1\">\n";
    for (int group = 0; group < size.groups; ++group) {
        xml << "  <Group Name=\"Group" << group << "\" DisplayName=\"Group " << group
            << "\" ShowThisGroup=\"-1\" ShowGroupName=\"-1\">\n";
        for (int item = 0; item < size.items; ++item)
            WriteItem(xml, group, item);
        xml << "  </Group>\n";
    }
    xml << "</Template>\n";
}

} // namespace

TemplateFolder::TemplateFolder(TemplateFolderSize size)
{
    QTextStream list(&m_list);
    list << "<Templates>";
    for (int number = 0; number < size.templates; ++number) {
        const QString fileName = m_folder.filePath(QStringLiteral("Template%1.xml").arg(number));
        WriteTemplate(fileName, number, size);
        m_fileNames.push_back(QFile::encodeName(fileName));
        list << "<Template name=\"Template" << number << "\" filename=\"Template" << number
             << ".xml\" pdsg=\"\" readonly=\"0\" category=\"PUMPS\" defaultforcategory=\"0\"/>";
    }
    list << "</Templates>";
}

QString TemplateFolder::Categories() const
{
    return QStringLiteral("<Categories><Category name=\"PUMPS\" displayname=\"Pumps\" pdsg=\"\"/></Categories>");
}

} // namespace schedules::bench
