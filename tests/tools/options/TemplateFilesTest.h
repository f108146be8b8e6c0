#pragma once

#include "tools/options/saving/TemplateFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>

namespace schedules::testing {

inline QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// What a call throws; the numbers of texts show, since no resource module is there.
template <class Call>
std::string Failure(Call&& call)
{
    try {
        call();
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kSaveError) << error.what();
        return error.what();
    }
}

inline const std::string kRefused = "A file in the template folder cannot have this name.";

/// A folder "templates", and beside it a file "outside.xml" that nothing may touch.
struct TemplateFilesTest : ::testing::Test
{
    TemplateFilesTest()
    {
        std::filesystem::create_directory(Place(""));
        Write("../outside.xml", "outside");
    }
    ~TemplateFilesTest() override
    {
        Mode("", 0755);
        EXPECT_EQ(Read("../outside.xml"), "outside");
    }

    std::filesystem::path Place(const std::string& name) const
    {
        return std::filesystem::path(m_around.path().toStdString() + "/templates/" + name).lexically_normal();
    }
    TemplateFiles Folder() const { return TemplateFiles(m_around.path() + "/templates"); }

    void Write(const std::string& name, const QByteArray& content) const
    {
        QFile file(QString::fromStdString(Place(name).string()));
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size()) << name;
    }
    QByteArray Read(const std::string& name) const
    {
        QFile file(QString::fromStdString(Place(name).string()));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    void Mode(const std::string& name, unsigned mode) const
    {
        std::error_code gone;
        std::filesystem::permissions(Place(name), static_cast<std::filesystem::perms>(mode), gone);
    }
    void Link(const std::string& target, const std::string& name) const
    {
        std::filesystem::create_symlink(target, Place(name));
    }

    /// The names in the folder, sorted, with blanks between.
    std::string Names() const
    {
        QDir folder(m_around.path() + "/templates");
        return folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name)
            .join(' ')
            .toStdString();
    }

    std::string ReplaceFailure(const char* name, const QByteArray& content = "new") const
    {
        return Failure([&] { Folder().Replace(Text(name), content); });
    }
    std::string DeleteFailure(const char* name) const
    {
        return Failure([&] { Folder().Delete(Text(name)); });
    }

    QTemporaryDir m_around;
};

} // namespace schedules::testing
