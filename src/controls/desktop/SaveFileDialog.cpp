#include "controls/desktop/SaveFileDialog.h"

#include "common/modResource.h"
#include "controls/desktop/MessageDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>

namespace schedules {

namespace {

bool HasBar(const QString& filter)
{
    return filter.contains(u'|');
}

/// The toolkit takes the patterns from the last brackets, and hides these.
QString ToolkitFilter(const QString& filter)
{
    QString patterns = filter.section(u'|', 1);
    return QStringLiteral("%1 (%2)").arg(filter.section(u'|', 0, 0), patterns.replace(u';', u' '));
}

QStringList ToolkitFilters(QStringList filters)
{
    for (QString& filter : filters) {
        if (HasBar(filter))
            filter = ToolkitFilter(filter);
    }
    return filters;
}

bool HasWildcard(const QString& fileName)
{
    static const QRegularExpression wildcard(QStringLiteral("[*?]"));
    return QFileInfo(fileName).fileName().contains(wildcard);
}

} // namespace

SaveFileDialog::SaveFileDialog(const FileQuestion& question, QWidget* window)
    : QFileDialog(window, question.title), m_flags(question.flags)
{
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite); // it asks by itself
    setOption(HideNameFilterDetails, std::ranges::any_of(question.filters, HasBar));
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilters(ToolkitFilters(question.filters));
    setDefaultSuffix(question.defaultSuffix);
    selectFile(question.fileName);
}

QString SaveFileDialog::Ask(const FileQuestion& question, QWidget* window)
{
    const QPointer dialog = new SaveFileDialog(question, window);
    const bool accepted = dialog->exec() == Accepted;
    const QString name = accepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return name;
}

void SaveFileDialog::accept()
{
    const QString name = selectedFiles().value(0);
    // A folder is entered, not written.
    if (QFileInfo(name).isDir() || (!Refuses(name) && MayWrite(name)))
        QFileDialog::accept();
}

bool SaveFileDialog::Refuses(const QString& fileName)
{
    const auto refuse = [this](const QString& text) {
        AskOver(this, {.text = text, .style = kExclamation, .title = windowTitle()});
        return true;
    };
    const QString folder = QFileInfo(fileName).path();
    if (HasWildcard(fileName))
        return refuse(ComponentText("A file name cannot contain * or ?."));
    if ((m_flags & kPathMustExist) && !QFileInfo(folder).isDir())
        return refuse(ComponentText("There is no folder %1.").arg(QDir::toNativeSeparators(folder)));
    return false;
}

bool SaveFileDialog::MayWrite(const QString& fileName)
{
    if (!(m_flags & kOverwritePrompt) || !QFileInfo::exists(fileName))
        return true;
    const QString text = ComponentText("%1 exists already. Replace it?").arg(QFileInfo(fileName).fileName());
    return AskOver(this, {.text = text, .style = kYesNo | kExclamation, .title = windowTitle()}) == Answer::Yes;
}

} // namespace schedules
