#include "host/cli/ModelCommands.h"

#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/cli/CatalogueJson.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/MatchesJson.h"
#include "host/files/XmlFile.h"
#include "host/tools/ConsoleUserInterface.h"
#include "host/tools/LanguageModule.h"
#include "model/CTemplates.h"

#include <algorithm>

namespace schedules::host {

namespace {

bool IsSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

/// The folder is given so that blanks at the ends of its name, which the template drops, are not at an end.
void SetFile(CTemplate& source, const QString& path)
{
    const auto name = std::find_if(path.rbegin(), path.rend(), IsSeparator).base();
    const QString folder(path.begin(), name - path.begin());
    const bool isAbsolute = !folder.isEmpty() && IsSeparator(folder.front());
    source.SetFilePath(isAbsolute ? folder : QStringLiteral("./") + folder);
    source.SetFilename(QString(name, path.end() - name));
}

HostError Failure(ConsoleUserInterface& user, const QString& whenNothingIsTold)
{
    return HostError(user.TakeFailure().value_or(whenNothingIsTold.simplified()));
}

/// What ends the catalogue is reported last, behind what is wrong with the templates before it.
HostError LastReport(ConsoleUserInterface& user, const QString& whenNothingIsTold)
{
    const QStringList reports = user.TakeReports();
    return HostError(reports.isEmpty() ? whenNothingIsTold : reports.last());
}

} // namespace

int RunTemplate(const CommandLine& commandLine)
{
    LanguageModule language(commandLine.session.language);
    language.Use();
    ConsoleUserInterface user;
    CTemplate source(user);
    const QString file = commandLine.files.first();
    SetFile(source, file);
    if (!source.XMLToObject())
        throw Failure(user, QStringLiteral("no template can be read from %1").arg(file));
    const QString xml = source.ObjectToXML();
    if (xml.isEmpty())
        throw Failure(user, QStringLiteral("the template in %1 cannot be written").arg(file));
    PrintOut(xml.toUtf8());
    return kDone;
}

int RunCatalogue(const CommandLine& commandLine)
{
    LanguageModule language(commandLine.session.language);
    language.Use();
    ConsoleUserInterface user;
    CTemplates catalogue(user);
    const QStringList& given = commandLine.files;
    if (!catalogue.CreateObjects(ReadXmlFile(given[0]), ReadXmlFile(given[1]), given[2]))
        throw LastReport(user, QStringLiteral("a list or the folder's name is blank"));
    for (const QString& line : user.TakeReports())
        PrintError(line);
    PrintOut(CatalogueJson(catalogue));
    return kDone;
}

int RunFind(const CommandLine& commandLine)
{
    PrintOut(MatchesJson(commandLine.files.first()));
    return kDone;
}

} // namespace schedules::host
