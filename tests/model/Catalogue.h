#pragma once

#include "model/CTemplates.h"
#include "model/Inside.h"
#include "model/TemplatesFolder.h"

namespace schedules::testing {

/// A catalogue of a folder with the files "a.xml", "b.xml" and "c.xml", which have one group each, before a user who
/// presses OK.
struct CatalogueFixture : ::testing::Test
{
    CatalogueFixture()
    {
        for (const char* name : {"A", "B", "C"})
            folder.Write(QString(name).toLower() + ".xml",
                         QString("<Template><Group Name='Of %1'/></Template>").arg(name).toUtf8());
    }

    /// Makes the catalogue from these elements, with the categories PUMPS and FANS.
    bool Create(const QString& elements)
    {
        return catalogue.CreateObjects("<Templates>" + elements + "</Templates>", kCategories, folder.Path());
    }

    /// The catalogue made from these elements, drawn.
    std::string DrawnFrom(const QString& elements)
    {
        EXPECT_TRUE(Create(elements)) << elements.toStdString();
        return Drawn();
    }

    /// A template, a line each: "1 Pumps: a.xml p1 protected default Pumps [Of A]".
    std::string Drawn() const
    {
        QString drawn;
        for (const auto& listed : catalogue.NewEnum()) {
            QStringList facts{listed->Filename(), listed->Pdsg()};
            facts += listed->Protected() ? "protected" : "";
            facts += listed->DefaultForCategory() ? "default" : "";
            facts += listed->Category() ? listed->Category()->DisplayName() : "";
            facts.removeAll("");
            drawn += QString("%1 %2: %3 [%4]\n")
                         .arg(QString::number(listed->ID()), listed->Name(), facts.join(' '), GroupsOf(*listed));
        }
        return drawn.toStdString();
    }

    static QString GroupsOf(const CTemplate& listed)
    {
        QStringList names;
        for (const auto& group : listed.Groups().NewEnum())
            names += group->Name();
        return names.join(", ");
    }

    /// Makes a catalogue that a later failure must not touch.
    void CreateFormer() { EXPECT_TRUE(Create("<Template name='Former' filename='a.xml'/>")); }
    bool HasFormer() const { return Drawn() == "1 Former: a.xml [Of A]\n"; }

    static inline const QString kCategories = "<Categories><Category name='PUMPS' displayname='Pumps'/>"
                                              "<Category name='FANS' displayname='Fans'/></Categories>";

    TemplatesFolder folder;
    ScriptedUserInterface user;
    CTemplates catalogue{user};
};

} // namespace schedules::testing
