// The layers of the project: which folder may include which, and which folders may know what of the libraries.

#include "ProjectTexts.h"

#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

using namespace schedules::testing;

namespace {

struct Include
{
    QString file;  ///< relative to the project
    QString layer; ///< of the including file
    QString header;
};

/// What each layer may include beside itself: other layers, and single headers. The host sees public headers alone, and
/// so names some of a layer that is not open to it.
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
    {"host/base", {}},
    {"host/files", {"host/base", "common/FileReplacement.h"}},
    {"host/project", {"host/base", "framework"}},
    {"host/schedule", {"host/base", "host/project", "framework", "model", "grid/UnitLabel.h"}},
    {"host/import", {"host/base", "host/project", "host/schedule"}},
    {"host/tools", {"host/base", "host/files", "framework", "common/UserInterface.h", "spread/Sheet.h"}},
    {"host/answers", {"host/base", "host/files", "host/project", "host/schedule", "host/tools"}},
    {"host/window",
     {"host/base", "host/project", "host/files", "host/schedule", "host/import", "host/tools", "host/answers",
      "framework"}},
    {"host/cli",
     {"host/base", "host/files", "host/project", "host/schedule", "host/import", "host/tools", "host/answers",
      "host/window", "model", "fileutil", "spread/Sheet.h"}},
    {"host", {"host/base", "host/cli", "framework"}},
};

/// The innermost folder of a path that the table knows; its first one when it knows none.
QString LayerOf(const QString& path)
{
    QString folder = path.section('/', 0, -2);
    while (folder.contains('/') && !kMayInclude.contains(folder))
        folder = folder.section('/', 0, -2);
    return folder;
}

QString LayerOfFile(const QString& file)
{
    return LayerOf(file.startsWith("src/") ? file.mid(4) : file);
}

bool IsOfTheHost(const Include& include)
{
    return include.layer.section('/', 0, 0) == "host";
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
        for (const QString& header : Captured(ContentOf(file), pattern))
            includes.append({file, LayerOfFile(file), header});
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
    const QString layer = LayerOf(include.header);
    const QStringList& others = kMayInclude.value(include.layer);
    return layer == include.layer || others.contains(layer) || others.contains(include.header);
}

/// The rows of a page's tables whose first cell is a layer, as "| `layer` | what it is | what it may include |".
QHash<QString, QStringList> LayersOf(const QString& page)
{
    static const QRegularExpression row(R"re(^\| `([\w/]+)` \|[^|]*\| ([^|]*) \|)re",
                                        QRegularExpression::MultilineOption);
    QHash<QString, QStringList> layers;
    auto rows = row.globalMatch(ContentOf(page));
    while (rows.hasNext()) {
        const auto found = rows.next();
        const QString others = found.captured(2).remove('`');
        layers.insert(found.captured(1), others == "nothing" ? QStringList() : others.split(", "));
    }
    return layers;
}

/// A line for each layer.
std::string Drawn(const QHash<QString, QStringList>& layers)
{
    QStringList lines;
    for (auto layer = layers.begin(); layer != layers.end(); ++layer) {
        QStringList others = *layer;
        others.sort();
        lines << layer.key() + ": " + others.join(' ');
    }
    lines.sort();
    return lines.join('\n').toStdString();
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
        if (IsOfTheHost(include)) {
            EXPECT_NE(include.header, "model/Inside.h") << Told(include);
        }
    }
}

TEST(Layers, EveryFolderOfSourcesIsInTheTable)
{
    for (const QString& file : SourcesBelow("src") + SourcesBelow("host"))
        EXPECT_TRUE(kMayInclude.contains(LayerOfFile(file))) << file.toStdString();
}

/// What a tool does it does by its interfaces; a widget of its own, or a method by its text, is none of the host's
/// business.
TEST(Layers, TheHostKnowsNoPartOfATool)
{
    const QRegularExpression parts(R"re(findChild|Q_ARG|Q_RETURN_ARG|invokeMethod\([^;]*")re");
    for (const QString& file : SourcesBelow("host"))
        EXPECT_FALSE(parts.match(ContentOf(file)).hasMatch()) << file.toStdString();
}

TEST(Layers, OnlyTheProgramItselfLiesAtTheHostsDoor)
{
    EXPECT_EQ(QDir(kProject + "/host").entryList({"*.h", "*.cpp"}, QDir::Files), QStringList{"main.cpp"});
}

/// A layer that another one may include, and so on, never leads back to it.
TEST(Layers, NoneIncludesOneThatIncludesIt)
{
    QSet<QString> done;
    const auto canBeBuilt = [&](const QString& layer) {
        return std::ranges::all_of(kMayInclude[layer],
                                   [&](const QString& other) { return other.endsWith(".h") || done.contains(other); });
    };
    qsizetype before = -1;
    while (std::exchange(before, done.size()) != done.size()) {
        for (const QString& layer : kMayInclude.keys()) {
            if (canBeBuilt(layer))
                done.insert(layer);
        }
    }
    EXPECT_EQ(done, QSet<QString>(kMayInclude.keyBegin(), kMayInclude.keyEnd()));
}

TEST(Layers, ThePageShowsTheTable)
{
    EXPECT_EQ(Drawn(LayersOf("docs/architecture.md")), Drawn(kMayInclude));
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
    const QStringList withoutWidgets{"framework",  "common",       "fileutil",      "spread",     "workbook",
                                     "webpage",    "grid",         "model",         "rtf",        "host/base",
                                     "host/files", "host/project", "host/schedule", "host/import"};
    for (const Include& include : LibraryIncludes()) {
        if (withoutWidgets.contains(include.layer)) {
            EXPECT_FALSE(widgets.match(include.header).hasMatch()) << Told(include);
        }
    }
}

TEST(Layers, SqlIsTheHostsProjectsAlone)
{
    const QRegularExpression sql("^(QtSql|QSql)");
    for (const Include& include : LibraryIncludes()) {
        if (include.layer != "host/project") {
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
