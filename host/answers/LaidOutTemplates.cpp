#include "host/answers/LaidOutTemplates.h"

#include "host/base/HostError.h"
#include "host/files/FileReplacement.h"
#include "host/files/XmlFile.h"
#include "host/project/Names.h"
#include "host/project/Project.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <algorithm>

namespace schedules::host {

namespace {

const QString kMemory = QStringLiteral(".laid-out.json");
const QStringList kTemplateFiles{QStringLiteral("*.xml")};

QString Checksum(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex());
}

bool Holds(const QStringList& names, const QString& name)
{
    return std::ranges::any_of(names, [&](const QString& each) { return SameName(each, name); });
}

bool HasName(const QList<TemplateEntry>& entries, const QString& name)
{
    return std::ranges::any_of(entries, [&](const TemplateEntry& entry) { return SameName(entry.name, name); });
}

bool LeadsElsewhere(QChar character)
{
    return character == u'/' || character == u'\\' || character < u' ';
}

/// Whether a name is one of a file directly in a folder. A server is trusted with values, not with the way to a file.
bool IsFileName(const QString& name)
{
    return !name.trimmed().isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") && name != kMemory &&
           std::ranges::none_of(name, LeadsElsewhere);
}

void Remove(const QString& file)
{
    if (!QFile::remove(file))
        throw HostError(QStringLiteral("cannot remove %1").arg(file));
}

/// "Pumps.xml" becomes "Pumps (recovered).xml", or with a number when that is taken.
QString RecoveredName(const QDir& folder, const QString& fileName)
{
    const QFileInfo info(fileName);
    for (int number = 1;; ++number) {
        const QString mark = number == 1 ? QStringLiteral("recovered") : QStringLiteral("recovered %1").arg(number);
        const QString name = QStringLiteral("%1 (%2).%3").arg(info.completeBaseName(), mark, info.suffix());
        if (!folder.exists(name))
            return name;
    }
}

} // namespace

LaidOutTemplates::LaidOutTemplates(Project& project, const QString& folder)
    : m_project(project), m_path(QFileInfo(folder).absoluteFilePath())
{
    if (!QDir().mkpath(m_path))
        throw HostError(QStringLiteral("cannot make the folder %1").arg(m_path));
    ReadMemory();
}

void LaidOutTemplates::LayOut()
{
    const Project::Moment moment(m_project);
    const QStringList listed = FileNames(m_project.Templates());
    for (const QString& name : listed)
        FileOf(name); // a bad name is told before anything is written
    for (const QString& name : listed) {
        const QString wanted = m_project.TemplateText(name);
        const QString present = TextOf(name);
        if (present == wanted)
            continue;
        if (!present.isEmpty() && IsChanged(name, present))
            KeepAside(name);
        WriteXmlFile(FileOf(name), wanted);
        m_laidOut.insert(FoldedName(name), Checksum(wanted));
    }
    RemoveGone(listed);
    WriteMemory();
}

FileTexts LaidOutTemplates::Changed(const QStringList& expected) const
{
    const QStringList listed = FileNames(m_project.Templates());
    FileTexts changed;
    for (const QString& name : expected) {
        const QString text = TextOf(name);
        if (!text.isEmpty() && (!Holds(listed, name) || IsChanged(name, text)))
            changed.append({name, text});
    }
    return changed;
}

FileTexts LaidOutTemplates::ChangedElsewhere(const FileTexts& stored, const FileTexts& changed) const
{
    FileTexts others;
    for (qsizetype index = 0; index < stored.size(); ++index) {
        const auto& [name, text] = stored[index];
        if (!text.isEmpty() && text != changed[index].second && IsChanged(name, text))
            others.append({name, text});
    }
    return others;
}

void LaidOutTemplates::Remember(const FileTexts& texts)
{
    for (const auto& [name, text] : texts)
        m_laidOut.insert(FoldedName(name), Checksum(text));
    WriteMemory();
}

QStringList LaidOutTemplates::Orphans() const
{
    const QStringList listed = FileNames(m_project.Templates());
    QStringList orphans = QDir(m_path).entryList(kTemplateFiles, QDir::Files, QDir::Name);
    orphans.removeIf([&](const QString& name) { return Holds(listed, name); });
    return orphans;
}

void LaidOutTemplates::Adopt(const QString& fileName)
{
    const QString text = TextOf(fileName);
    const QList<TemplateEntry> shown = m_project.Templates();
    const FileTexts texts{{fileName, text}};
    TemplateEntry entry = EntryOfFile(fileName, text);
    if (HasName(shown, entry.name))
        entry.name = QFileInfo(fileName).completeBaseName(); // what was saved twice is known by its file
    m_project.MergeTemplates(shown, shown + QList{entry}, texts);
    Remember(texts);
}

QString LaidOutTemplates::FileOf(const QString& fileName) const
{
    if (!IsFileName(fileName))
        throw HostError(QStringLiteral("no template can have the file name \"%1\"").arg(fileName.simplified()));
    return QDir(m_path).filePath(fileName);
}

QString LaidOutTemplates::MemoryFile() const
{
    return QDir(m_path).filePath(kMemory);
}

/// Empty when there is no such file.
QString LaidOutTemplates::TextOf(const QString& fileName) const
{
    const QString file = FileOf(fileName);
    return QFileInfo::exists(file) ? ReadXmlFile(file) : QString();
}

bool LaidOutTemplates::IsChanged(const QString& fileName, const QString& text) const
{
    return m_laidOut.value(FoldedName(fileName)) != Checksum(text);
}

void LaidOutTemplates::KeepAside(const QString& fileName)
{
    const QString aside = FileOf(RecoveredName(QDir(m_path), fileName));
    if (!QFile::rename(FileOf(fileName), aside))
        throw HostError(QStringLiteral("cannot rename %1 to %2").arg(FileOf(fileName), aside));
}

/// Takes away the files that were laid out and that the project has no longer. One that was changed here stays.
void LaidOutTemplates::RemoveGone(const QStringList& listed)
{
    for (const QString& name : QDir(m_path).entryList(kTemplateFiles, QDir::Files)) {
        if (!Holds(listed, name) && !IsChanged(name, TextOf(name)))
            Remove(FileOf(name));
    }
    m_laidOut.removeIf([&](const auto& remembered) { return !Holds(listed, remembered.key()); });
}

void LaidOutTemplates::ReadMemory()
{
    QFile file(MemoryFile());
    if (!file.exists())
        return; // nothing was laid out yet; files that are there already are then changed ones
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError)
        throw HostError(QStringLiteral("cannot read %1: %2").arg(file.fileName(), file.errorString()));
    const QJsonObject memory = QJsonDocument::fromJson(text).object();
    for (auto entry = memory.begin(); entry != memory.end(); ++entry)
        m_laidOut.insert(entry.key(), entry.value().toString());
}

void LaidOutTemplates::WriteMemory() const
{
    QJsonObject memory;
    for (auto entry = m_laidOut.begin(); entry != m_laidOut.end(); ++entry)
        memory.insert(entry.key(), entry.value());
    ReplaceFile(MemoryFile(), QJsonDocument(memory).toJson());
}

QString OwnTemplateFolder(const Project& project)
{
    const QDir own(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    const QString id = project.Id();
    if (!IsFileName(id))
        throw HostError(QStringLiteral("%1 has no valid identifier").arg(project.Address().Text()));
    return own.filePath(QStringLiteral("projects/%1/templates").arg(id));
}

QString FileNameFor(const QString& templateName)
{
    QString fileName = templateName;
    std::ranges::replace_if(fileName, LeadsElsewhere, u'-');
    return fileName + QStringLiteral(".xml");
}

TemplateEntry EntryOfFile(const QString& fileName, const QString& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd() &&
           !(reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("Template")))
        continue;
    if (reader.atEnd())
        throw HostError(QStringLiteral("%1 is no template").arg(fileName));
    const auto attributes = reader.attributes();
    const QString name = attributes.value(QStringLiteral("Name")).toString().trimmed();
    return {.name = name.isEmpty() ? QFileInfo(fileName).completeBaseName() : name,
            .fileName = fileName,
            .pdsg = {},
            .category = attributes.value(QStringLiteral("Category")).toString().trimmed()};
}

} // namespace schedules::host
