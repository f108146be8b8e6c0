#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <vector>

namespace schedules::bench {

struct TemplateFolderSize
{
    int templates;
    int groups; ///< of each template
    int items;  ///< of each group
};

/// A folder of template files, and the lists that a host has of them; the same size always gives the same files.
class TemplateFolder
{
public:
    explicit TemplateFolder(TemplateFolderSize size);

    QString Path() const { return m_folder.path(); }
    QString List() const { return m_list; }
    QString Categories() const;
    const std::vector<QByteArray>& FileNames() const { return m_fileNames; }

private:
    QTemporaryDir m_folder;
    QString m_list;
    std::vector<QByteArray> m_fileNames;
};

} // namespace schedules::bench
