#pragma once

#include "host/answers/TemplateFileAnswers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

inline constexpr auto kPumpTemplate =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<Template Name=\"Pumps\" DisplayName=\"Pump schedule\" Category=\"ROTATING\" AllowEdit=\"-1\">"
    "<Group Name=\"Design\" DisplayName=\"Design data\" ShowThisGroup=\"-1\" ShowGroupName=\"-1\">"
    "<Item Name=\"Flow\" DisplayName=\"Rated flow\" ShowThisItem=\"-1\"/>"
    "<Item Name=\"Note\" DisplayName=\"Duty note\" UserDefined=\"-1\" ShowThisItem=\"-1\"/></Group>"
    "<Group Name=\"Motor\" DisplayName=\"Motor\" ShowThisGroup=\"0\" ShowGroupName=\"-1\">"
    "<Item Name=\"Power\" DisplayName=\"Power\" ShowThisItem=\"-1\"/></Group></Template>\n";
inline constexpr auto kFanTemplate =
    "<Template Name=\"Fans\" DisplayName=\"Fan schedule\" Category=\"ROTATING\" AllowEdit=\"-1\">"
    "<Group Name=\"Duty\" DisplayName=\"Duty\" ShowThisGroup=\"-1\" ShowGroupName=\"-1\">"
    "<Item Name=\"Air\" DisplayName=\"Air flow\" ShowThisItem=\"-1\"/></Group></Template>\n";
inline constexpr auto kTemplateList =
    "<Templates site=\"north\">\n"
    "  <!-- rotating -->\n"
    "  <Template name=\"Pumps\" filename=\"Pumps.xml\" pdsg=\"P-1\" readonly=\"0\" category=\"ROTATING\" "
    "defaultforcategory=\"-1\"/>\n"
    "  <Template name=\"Fans\" filename=\"Fans.xml\" pdsg=\"P-2\" readonly=\"0\" category=\"ROTATING\" "
    "defaultforcategory=\"0\"/>\n"
    "</Templates>\n";
inline constexpr auto kCategoryList =
    "<Categories><Category name=\"ROTATING\" displayname=\"Rotating\" pdsg=\"P\"/></Categories>\n";

/// A host's templates in a folder that is there for one test.
class TemplateFolderFiles
{
public:
    TemplateFolderFiles()
    {
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("templates")));
        Write("templates/Pumps.xml", kPumpTemplate);
        Write("templates/Fans.xml", kFanTemplate);
        Write("list.xml", kTemplateList);
        Write("categories.xml", kCategoryList);
    }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void Write(const char* name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name;
        file.write(bytes);
    }

    std::string Content(const char* name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll().toStdString();
    }

    TemplatePlaces Places(const char* current = "Pumps.xml") const
    {
        return {Path("templates"), Path("list.xml"), Path("categories.xml"), QLatin1String(current)};
    }

private:
    QTemporaryDir m_folder;
};

} // namespace schedules::host::testing
