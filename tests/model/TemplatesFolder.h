#pragma once

#include "model/CTemplate.h"
#include "model/ModelDrawing.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::testing {

/// A folder with template files, gone afterwards.
class TemplatesFolder
{
public:
    QString Path() const { return m_folder.path(); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void Write(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << Path(name).toStdString();
        ASSERT_EQ(file.write(content), content.size());
    }

    /// A file of that size which takes no place on the disk.
    void WriteSparse(const QString& name, qint64 size) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
    }

    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << Path(name).toStdString();
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

/// A template whose file is "t.xml", before a user who presses OK.
struct TemplateFixture : ::testing::Test
{
    TemplateFixture()
    {
        model.SetFilePath(folder.Path());
        model.SetFilename("t.xml");
    }

    bool Read(const QByteArray& xml)
    {
        folder.Write("t.xml", xml);
        return model.XMLToObject();
    }

    /// The template that a file is read as, drawn.
    std::string DrawnFrom(const QByteArray& xml)
    {
        EXPECT_TRUE(Read(xml));
        return Drawn(model);
    }

    /// What becomes of a file that is read and written again.
    std::string Rewritten(const QByteArray& xml)
    {
        EXPECT_TRUE(Read(xml));
        return model.ObjectToXML().toStdString();
    }

    /// Reads a small template, which a later failure must not touch.
    void ReadFormer() { EXPECT_TRUE(Read("<Template Kept='1'><Group Name='Former'/></Template>")); }

    /// Whether that template is there, and nothing else.
    bool HasFormer() const { return Drawn(model) == "Kept='1'\n  1 Former: Name='Former'\n"; }

    TemplatesFolder folder;
    ScriptedUserInterface user;
    CTemplate model{user};
};

} // namespace schedules::testing
