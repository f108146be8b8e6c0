// The layers of the project: which folder may include which, and which folders may know what of the libraries.

#include "ProjectTexts.h"

#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

using namespace schedules::testing;

namespace {

struct Include
{
    QString file;  ///< relative to the project
    QString layer; ///< of the including file
    QString header;
};

/// What each layer may include beside itself.
const QHash<QString, QStringList> kMayInclude{
    {"framework", {}},
    {"common", {}},
    {"fileutil", {"common"}},
    {"spread", {"common"}},
    {"workbook", {"common", "spread"}},
    {"webpage", {"common", "spread"}},
    {"grid", {"common", "spread"}},
    {"model", {"common", "fileutil"}},
    {"controls/cells", {"common", "spread"}},
    {"controls/grid", {"controls/cells", "common", "spread"}},
    {"controls/paper", {"controls/cells", "common", "spread"}},
    {"controls/lists", {"common"}},
    {"controls/desktop", {"controls/cells", "common", "spread"}},
    {"rtf", {"common"}},
    {"tools", {"framework", "common"}},
    {"tools/schedule",
     {"tools", "framework", "common", "spread", "grid", "controls/cells", "controls/grid", "controls/paper",
      "controls/desktop", "rtf", "workbook", "webpage"}},
    {"tools/options", {"tools", "framework", "common", "fileutil", "model", "controls/lists", "controls/desktop"}},
    {"component", {"framework", "common", "fileutil", "tools", "tools/schedule", "tools/options"}},
    {"host", {"framework", "model", "fileutil"}},
};

/// Headers outside of its layers that the host may include: the sheet, the grid engine, and what the public headers are
/// made of.
const QStringList kPublicHeaders{"spread/Sheet.h", "grid/CSchedule.h", "common/UserInterface.h"};

/// The innermost folder of a path that the table knows; its first one when it knows none.
QString LayerOf(const QString& path)
{
    QString folder = path.section('/', 0, -2);
    while (folder.contains('/') && !kMayInclude.contains(folder))
        folder = folder.section('/', 0, -2);
    return folder;
}

QStringList SourcesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator found(kProject + '/' + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files << QDir(kProject).relativeFilePath(found.next());
    return files;
}

QList<Include> Includes(const QString& pattern)
{
    QList<Include> includes;
    for (const QString& file : SourcesBelow("src") + SourcesBelow("host")) {
        const QString layer = file.startsWith("host/") ? QStringLiteral("host") : LayerOf(file.mid(4));
        for (const QString& header : Captured(ContentOf(file), pattern))
            includes.append({file, layer, header});
    }
    return includes;
}

QList<Include> OwnIncludes()
{
    return Includes(R"re(^\s*#include "([^"]+)")re");
}

QList<Include> LibraryIncludes()
{
    return Includes(R"re(^\s*#include <([^>]+)>)re");
}

bool Allowed(const Include& include)
{
    if (include.layer == "host" && (!include.header.contains('/') || kPublicHeaders.contains(include.header)))
        return true;
    const QString layer = LayerOf(include.header);
    return layer == include.layer || kMayInclude.value(include.layer).contains(layer);
}

std::string Told(const Include& include)
{
    return (include.file + " includes " + include.header).toStdString();
}

} // namespace

TEST(Layers, EachFolderIncludesOnlyWhatItMay)
{
    const auto includes = OwnIncludes();
    ASSERT_GT(includes.size(), 50);
    for (const Include& include : includes)
        EXPECT_TRUE(Allowed(include)) << Told(include);
}

TEST(Layers, NoHostWritesWhatIsForTheComponentAlone)
{
    for (const Include& include : OwnIncludes()) {
        if (include.layer == "host") {
            EXPECT_NE(include.header, "model/Inside.h") << Told(include);
        }
    }
}

TEST(Layers, EveryFolderOfSourcesIsInTheTable)
{
    for (const QString& file : SourcesBelow("src"))
        EXPECT_TRUE(kMayInclude.contains(LayerOf(file.mid(4)))) << file.toStdString();
}

TEST(Layers, OnlyTheWrapperIncludesTheXmlLibrary)
{
    for (const Include& include : LibraryIncludes()) {
        if (include.header.startsWith("libxml/")) {
            EXPECT_TRUE(include.file.startsWith("src/common/Xml")) << Told(include);
        }
    }
}

TEST(Layers, NothingBelowTheControlsKnowsAWidget)
{
    const QRegularExpression widgets(
        "^(QtWidgets|QtPrintSupport|QWidget|QApplication|QAbstractScrollArea|QDialog|QMessageBox|QPrinter|QLabel)");
    const QStringList withoutWidgets{"framework", "common", "fileutil", "spread", "workbook",
                                     "webpage",   "grid",   "model",    "rtf"};
    for (const Include& include : LibraryIncludes()) {
        if (withoutWidgets.contains(include.layer)) {
            EXPECT_FALSE(widgets.match(include.header).hasMatch()) << Told(include);
        }
    }
}

TEST(Layers, SqlIsTheHostsAlone)
{
    const QRegularExpression sql("^(QtSql|QSql)");
    for (const Include& include : LibraryIncludes()) {
        if (include.layer != "host") {
            EXPECT_FALSE(sql.match(include.header).hasMatch()) << Told(include);
        }
    }
}

TEST(Layers, NoFileUsesPrivateQtHeaders)
{
    for (const Include& include : LibraryIncludes())
        EXPECT_FALSE(include.header.contains("/private/")) << Told(include);
}

TEST(Layers, EveryHeaderIsIncludedOnce)
{
    for (const QString& file : SourcesBelow("src") + SourcesBelow("host")) {
        if (file.endsWith(".h")) {
            EXPECT_TRUE(ContentOf(file).startsWith("#pragma once\n")) << file.toStdString();
        }
    }
}
