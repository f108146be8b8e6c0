#pragma once

#include "common/modResource.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <map>

namespace schedules::testing {

using Texts = std::map<int, QString>;

/// A table of numbered texts, compiled as those of the languages are, in a folder of its own.
class CompiledTable
{
public:
    explicit CompiledTable(const Texts& texts, const QString& language = QStringLiteral("en_US"))
    {
        WriteSource(texts, language);
        const QString compiler = QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease");
        const int exitCode = QProcess::execute(compiler, {QStringLiteral("-silent"), QStringLiteral("-idbased"),
                                                          SourceName(), QStringLiteral("-qm"), FileName()});
        EXPECT_EQ(exitCode, 0) << compiler.toStdString();
    }

    QString FileName() const { return m_folder.filePath(QStringLiteral("table.qm")); }
    QString SourceName() const { return m_folder.filePath(QStringLiteral("table.ts")); }

private:
    void WriteSource(const Texts& texts, const QString& language) const
    {
        QString source = QStringLiteral("<TS version=\"2.1\" language=\"%1\"><context><name></name>").arg(language);
        for (const auto& [number, text] : texts)
            source += QStringLiteral("<message id=\"%1\"><source></source><translation>%2</translation></message>")
                          .arg(QString::number(number), text.toHtmlEscaped());
        QFile file(SourceName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((source + QStringLiteral("</context></TS>")).toUtf8());
    }

    QTemporaryDir m_folder;
};

/// Opens a module and makes it the one in use; no module is in use afterwards.
class ModuleInUse
{
public:
    explicit ModuleInUse(const QString& fileName) : m_handle(OpenResourceModule(fileName))
    {
        SetResourceModule(m_handle);
    }
    explicit ModuleInUse(const CompiledTable& table) : ModuleInUse(table.FileName()) {}

    ~ModuleInUse()
    {
        SetResourceModule(0);
        CloseResourceModule(m_handle);
    }

    ModuleInUse(const ModuleInUse&) = delete;
    ModuleInUse& operator=(const ModuleInUse&) = delete;

    int Handle() const { return m_handle; }

private:
    int m_handle;
};

/// The compiled table of one of the component's languages.
inline QString LanguageFile(const QString& language)
{
    return QStringLiteral(SCHEDULES_BIN_DIR "/languages/Schedules_%1.qm").arg(language);
}

} // namespace schedules::testing
