#include "host/answers/TemplateFileAnswers.h"

#include "host/base/HostError.h"
#include "host/files/TemplateListText.h"
#include "host/files/XmlFile.h"
#include "host/tools/HostRouter.h"

#include <QFileInfo>

#include <utility>

namespace schedules::host {

namespace {

const QString kGetList = QStringLiteral("GETTEMPLATELIST");
const QString kGetFolder = QStringLiteral("GETBUILDERPATH");
const QString kGetCategories = QStringLiteral("GETTEMPLATECATEGORIES");
const QString kGetCurrent = QStringLiteral("GETCURRENTSCHEDTEMPLATE");
const QString kSetCurrent = QStringLiteral("SETCURRENTSCHEDTEMPLATE");
const QString kReplaceList = QStringLiteral("UPDATESCHEDCONFIG");
const QString kRemoveFromList = QStringLiteral("REMOVECONFIGENTRY");

/// The folder wherever the program goes.
QString ExistingFolder(const QString& folder)
{
    const QFileInfo info(folder);
    if (!info.isDir())
        throw HostError(QStringLiteral("there is no folder %1").arg(folder));
    return info.absoluteFilePath();
}

} // namespace

TemplateFileAnswers::TemplateFileAnswers(HostRouter& router, const TemplatePlaces& places, KeepCurrent keepCurrent)
    : m_router(router), m_places(places), m_keepCurrent(std::move(keepCurrent))
{
    m_places.folder = ExistingFolder(places.folder);
    for (const QString& file : {places.list, places.categories})
        ReadXmlFile(file); // what cannot be read is told before there is an editor
    router.Answers(kGetList, [this](const Message&) { return ReadXmlFile(m_places.list); });
    router.Answers(kGetFolder, [this](const Message&) { return m_places.folder; });
    router.Answers(kGetCategories, [this](const Message&) { return ReadXmlFile(m_places.categories); });
    router.Answers(kGetCurrent, [this](const Message&) { return Current(); });
    router.Answers(kSetCurrent, [this](const Message& message) { return UseTemplate(message); });
    router.Answers(kReplaceList, [this](const Message& message) { return ReplaceList(message); });
    router.Answers(kRemoveFromList, [this](const Message& message) { return RemoveFromList(message); });
}

TemplateFileAnswers::~TemplateFileAnswers()
{
    for (const QString& name :
         {kGetList, kGetFolder, kGetCategories, kGetCurrent, kSetCurrent, kReplaceList, kRemoveFromList})
        m_router.NoLongerAnswers(name);
}

QString TemplateFileAnswers::UseTemplate(const Message& message)
{
    m_places.current = ParameterText(message, QStringLiteral("TemplateFile"));
    if (m_keepCurrent)
        m_keepCurrent(m_places.current);
    return {};
}

QString TemplateFileAnswers::ReplaceList(const Message& message) const
{
    const QString list = ParameterText(message, QStringLiteral("ConfigXML"));
    RequireXml(list);
    WriteXmlFile(m_places.list, list);
    return {};
}

QString TemplateFileAnswers::RemoveFromList(const Message& message) const
{
    const QString list = ReadXmlFile(m_places.list);
    const QString shorter = WithoutEntries(list, ParameterText(message, QStringLiteral("TemplateFile")));
    if (shorter != list)
        WriteXmlFile(m_places.list, shorter);
    return {};
}

} // namespace schedules::host
